// What the strings ask of the code page: the Windows side follows the system's, double-byte characters
// included; the native side knows ASCII only.
#pragma once

#include "afxdefs.h"

int StringCompareNoCase(LPCSTR left, LPCSTR right);
void StringMakeUpper(char *text, int length);
void StringMakeLower(char *text, int length);
void StringMakeReverse(char *text, int length);
bool StringIsSpace(char character);
// The text of a string resource, or its length -1 when there is none.
int StringResource(UINT id, char *buffer, int capacity);
// True when the pointer is a resource's number in disguise.
bool StringIsResourceId(LPCSTR text);
