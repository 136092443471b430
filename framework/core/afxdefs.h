// Calling-convention markers, diagnostics and small types that every other header uses.
//
// Differences from MFC: the markers are empty. ASSERT aborts the program in a build with _DEBUG and
// otherwise only checks that its expression compiles; TRACE never evaluates its arguments.
#pragma once

#include <windef.h>

#define AFXAPI
#define AFX_CDECL
#define AFX_DATA
#define AFX_DATADEF
#define AFX_INLINE inline
#define AFX_MSG_CALL
#define PASCAL_CALL
#define afx_msg

#define UNUSED(x) ((void)(x))
#define UNUSED_ALWAYS(x) ((void)(x))

// Spelt exactly as in the system's graphics header, where it may be defined again.
#ifndef RGB
#define RGB(r,g,b) ((COLORREF)(((BYTE)(r)|((WORD)((BYTE)(g))<<8))|(((DWORD)(BYTE)(b))<<16)))
#define GetRValue(rgb) (LOBYTE(rgb))
#define GetGValue(rgb) (LOBYTE(((WORD)(rgb)) >> 8))
#define GetBValue(rgb) (LOBYTE((rgb)>>16))
#endif

// A place in a list or map; null is "no place".
struct __POSITION {};
typedef __POSITION *POSITION;

ORVANEFW_API void AfxAssertFailed(LPCSTR expression, LPCSTR file, int line);

#ifdef _DEBUG
#define ASSERT(expression) ((expression) ? (void)0 : AfxAssertFailed(#expression, __FILE__, __LINE__))
#define VERIFY(expression) ASSERT(expression)
#else
#define ASSERT(expression) ((void)sizeof((expression) ? 1 : 0))
#define VERIFY(expression) ((void)(expression))
#endif
#define ASSERT_VALID(object) ASSERT((object) != nullptr)
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#define ASSERT_POINTER(pointer, type) ASSERT((pointer) != nullptr)
#define DEBUG_NEW new
#define TRACE(...) ((void)0)
#define TRACE0(text) ((void)0)
#define TRACE1(text, a) ((void)0)
#define TRACE2(text, a, b) ((void)0)
#define TRACE3(text, a, b, c) ((void)0)
