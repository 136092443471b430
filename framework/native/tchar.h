// The neutral names of 8-bit text for the native build; only the forms that the project's sources use.
#pragma once

#define _T(text) text
#define _TEXT(text) text
#define TEXT(text) text
