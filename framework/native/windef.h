// The basic Win32 types for the native build, so that window-free sources include <windef.h> everywhere.
//
// Differences from the system's header: LONG and DWORD are int types (they must have 32 bits and long has 64
// here), handles are only names that can be compared and passed on, and no function is declared.
#pragma once

#include <cstdint>

#define CONST const
#define FAR
#define NEAR
#define CALLBACK
#define WINAPI
#define APIENTRY
#define STDMETHODCALLTYPE
#define TRUE 1
#define FALSE 0
#define MAX_PATH 260

#ifndef NULL
#define NULL 0
#endif

typedef void VOID;
typedef int BOOL;
typedef char CHAR;
typedef char TCHAR;
typedef unsigned char BYTE;
typedef unsigned char UCHAR;
typedef unsigned char BOOLEAN;
typedef short SHORT;
typedef unsigned short USHORT;
typedef unsigned short WORD;
typedef unsigned short ATOM;
typedef wchar_t WCHAR;
typedef int INT;
typedef unsigned int UINT;
typedef int LONG;
typedef unsigned int ULONG;
typedef unsigned int DWORD;
typedef float FLOAT;
typedef long long LONGLONG;
typedef unsigned long long ULONGLONG;
typedef unsigned long long DWORDLONG;
typedef long long INT64;
typedef unsigned long long UINT64;
typedef std::intptr_t INT_PTR;
typedef std::intptr_t LONG_PTR;
typedef std::uintptr_t UINT_PTR;
typedef std::uintptr_t ULONG_PTR;
typedef std::uintptr_t DWORD_PTR;
typedef std::size_t SIZE_T;
typedef LONG HRESULT;
typedef DWORD COLORREF;
typedef DWORD LCID;
typedef WORD LANGID;

#define __int64 long long

typedef void *PVOID;
typedef void *LPVOID;
typedef const void *LPCVOID;
typedef char *LPSTR;
typedef char *PSTR;
typedef char *LPTSTR;
typedef const char *LPCSTR;
typedef const char *PCSTR;
typedef const char *LPCTSTR;
typedef wchar_t *LPWSTR;
typedef const wchar_t *LPCWSTR;
typedef BYTE *LPBYTE;
typedef BYTE *PBYTE;
typedef WORD *LPWORD;
typedef DWORD *LPDWORD;
typedef DWORD *PDWORD;
typedef int *LPINT;
typedef LONG *LPLONG;
typedef BOOL *LPBOOL;

typedef UINT_PTR WPARAM;
typedef LONG_PTR LPARAM;
typedef LONG_PTR LRESULT;

typedef void *HANDLE;
typedef HANDLE HGLOBAL;
typedef HANDLE HLOCAL;
typedef HANDLE HGDIOBJ;

#define DECLARE_HANDLE(name)                                                                                 \
    struct name##__ {                                                                                        \
        int unused;                                                                                          \
    };                                                                                                       \
    typedef struct name##__ *name

DECLARE_HANDLE(HWND);
DECLARE_HANDLE(HDC);
DECLARE_HANDLE(HFONT);
DECLARE_HANDLE(HPEN);
DECLARE_HANDLE(HBRUSH);
DECLARE_HANDLE(HBITMAP);
DECLARE_HANDLE(HPALETTE);
DECLARE_HANDLE(HINSTANCE);
DECLARE_HANDLE(HMENU);
DECLARE_HANDLE(HACCEL);
DECLARE_HANDLE(HRGN);
DECLARE_HANDLE(HICON);
DECLARE_HANDLE(HRSRC);
DECLARE_HANDLE(HKEY);
DECLARE_HANDLE(HHOOK);
typedef HICON HCURSOR;
typedef HINSTANCE HMODULE;

typedef struct tagPOINT {
    LONG x;
    LONG y;
} POINT, *PPOINT, *LPPOINT;

typedef struct tagSIZE {
    LONG cx;
    LONG cy;
} SIZE, *PSIZE, *LPSIZE;

typedef struct tagRECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
} RECT, *PRECT, *LPRECT;
typedef const RECT *LPCRECT;

typedef struct _FILETIME {
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
} FILETIME, *LPFILETIME;

#define MAKEWORD(low, high) ((WORD)(((BYTE)(low)) | ((WORD)((BYTE)(high))) << 8))
#define MAKELONG(low, high) ((LONG)(((WORD)(low)) | ((DWORD)((WORD)(high))) << 16))
#define LOWORD(value) ((WORD)(((DWORD_PTR)(value)) & 0xffff))
#define HIWORD(value) ((WORD)((((DWORD_PTR)(value)) >> 16) & 0xffff))
#define LOBYTE(value) ((BYTE)(((DWORD_PTR)(value)) & 0xff))
#define HIBYTE(value) ((BYTE)((((DWORD_PTR)(value)) >> 8) & 0xff))
