// The ready-made containers of strings, numbers and pointers.
//
// Differences from MFC: they are built on the templates and so share their rules about bad indexes and failed
// allocations; none of them can be serialized.
#pragma once

#include "afxtempl.h"

class ORVANEFW_API CStringArray : public CArray<CString, const CString &> {
    DECLARE_DYNAMIC(CStringArray)
};
class ORVANEFW_API CByteArray : public CArray<BYTE, BYTE> {
    DECLARE_DYNAMIC(CByteArray)
};
class ORVANEFW_API CWordArray : public CArray<WORD, WORD> {
    DECLARE_DYNAMIC(CWordArray)
};
class ORVANEFW_API CDWordArray : public CArray<DWORD, DWORD> {
    DECLARE_DYNAMIC(CDWordArray)
};
class ORVANEFW_API CUIntArray : public CArray<UINT, UINT> {
    DECLARE_DYNAMIC(CUIntArray)
};
class ORVANEFW_API CPtrArray : public CArray<void *, void *> {
    DECLARE_DYNAMIC(CPtrArray)
};
// The objects belong to the caller.
class ORVANEFW_API CObArray : public CArray<CObject *, CObject *> {
    DECLARE_DYNAMIC(CObArray)
};

class ORVANEFW_API CStringList : public CList<CString, const CString &> {
    DECLARE_DYNAMIC(CStringList)
public:
    explicit CStringList(int blockSize = 10) : CList(blockSize) {}
};
class ORVANEFW_API CPtrList : public CList<void *, void *> {
    DECLARE_DYNAMIC(CPtrList)
public:
    explicit CPtrList(int blockSize = 10) : CList(blockSize) {}
};
class ORVANEFW_API CObList : public CList<CObject *, CObject *> {
    DECLARE_DYNAMIC(CObList)
public:
    explicit CObList(int blockSize = 10) : CList(blockSize) {}
};

class ORVANEFW_API CMapStringToPtr : public CMap<CString, LPCSTR, void *, void *> {
    DECLARE_DYNAMIC(CMapStringToPtr)
public:
    explicit CMapStringToPtr(int blockSize = 10) : CMap(blockSize) {}
};
class ORVANEFW_API CMapStringToOb : public CMap<CString, LPCSTR, CObject *, CObject *> {
    DECLARE_DYNAMIC(CMapStringToOb)
public:
    explicit CMapStringToOb(int blockSize = 10) : CMap(blockSize) {}
};
class ORVANEFW_API CMapStringToString : public CMap<CString, LPCSTR, CString, LPCSTR> {
    DECLARE_DYNAMIC(CMapStringToString)
public:
    explicit CMapStringToString(int blockSize = 10) : CMap(blockSize) {}
};
class ORVANEFW_API CMapPtrToPtr : public CMap<void *, void *, void *, void *> {
    DECLARE_DYNAMIC(CMapPtrToPtr)
public:
    explicit CMapPtrToPtr(int blockSize = 10) : CMap(blockSize) {}
};
