// The setters of CUGCell that take drawing objects: they need the framework's window half.
#include <afxwin.h>

#include "grid/UGCell.h"
#include "grid/UGDefine.h"

namespace {

template <class Handle, class Object> Handle RawHandle(Object *object) {
    return object != nullptr ? static_cast<Handle>(object->GetSafeHandle()) : nullptr;
}

} // namespace

int CUGCell::SetBorderColor(CPen *pen) {
    m_borderPen = RawHandle<HPEN>(pen);
    return GRID_SUCCESS;
}

int CUGCell::SetFont(CFont *font) {
    m_font = RawHandle<HFONT>(font);
    return GRID_SUCCESS;
}

int CUGCell::SetBitmap(CBitmap *bitmap) {
    m_bitmap = RawHandle<HBITMAP>(bitmap);
    return GRID_SUCCESS;
}
