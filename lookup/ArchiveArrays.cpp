#include "lookup/ArchiveArrays.h"

namespace {

constexpr unsigned kLeastStringBytes = 1; // its length
constexpr unsigned kNumberBytes = 4;

int ReadArrayCount(CArchive &ar, unsigned leastBytesEach) {
    const unsigned count = ar.ReadCount();
    if (count > ar.BytesLeft() / leastBytesEach || count > 0x7FFFFFFF)
        AfxThrowArchiveException(CArchiveException::endOfFile, ar.GetFile()->GetFilePath());
    return static_cast<int>(count);
}

template <class Array, class Element> void Store(CArchive &ar, Array &array) {
    ar.WriteCount(static_cast<unsigned>(array.GetSize()));
    for (int i = 0; i < array.GetSize(); ++i)
        ar << static_cast<const Element &>(array.GetAt(i));
}

template <class Array, class Element> void Load(CArchive &ar, Array &array, unsigned leastBytesEach) {
    const int count = ReadArrayCount(ar, leastBytesEach);
    Array loaded;
    loaded.SetSize(count);
    for (int i = 0; i < count; ++i) {
        Element element;
        ar >> element;
        loaded.SetAt(i, element);
    }
    array.Copy(loaded);
}

} // namespace

void SerializeArray(CArchive &ar, CStringArray &strings) {
    if (ar.IsStoring())
        Store<CStringArray, CString>(ar, strings);
    else
        Load<CStringArray, CString>(ar, strings, kLeastStringBytes);
}

void SerializeArray(CArchive &ar, CArray<int, int> &numbers) {
    if (ar.IsStoring())
        Store<CArray<int, int>, int>(ar, numbers);
    else
        Load<CArray<int, int>, int>(ar, numbers, kNumberBytes);
}
