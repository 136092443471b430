// Data objects, offered and received.
#include "afxole.h"

#include <shlobj.h>
#include <vector>

IMPLEMENT_DYNAMIC(COleDataSource, CCmdTarget)

namespace {

int g_oleUsers = 0;

FORMATETC GlobalFormat(CLIPFORMAT format) {
    return {format, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

HGLOBAL CopyGlobal(HGLOBAL source) {
    const SIZE_T size = ::GlobalSize(source);
    const HGLOBAL copy = ::GlobalAlloc(GMEM_MOVEABLE, size);
    if (!copy)
        return nullptr;
    std::memcpy(::GlobalLock(copy), ::GlobalLock(source), size);
    ::GlobalUnlock(source);
    ::GlobalUnlock(copy);
    return copy;
}

} // namespace

BOOL AfxOleInit() {
    if (FAILED(::OleInitialize(nullptr)))
        return FALSE;
    g_oleUsers++;
    return TRUE;
}

void AfxOleTerm() {
    if (g_oleUsers > 0) {
        g_oleUsers--;
        ::OleUninitialize();
    }
}

void COleDataObject::Attach(LPDATAOBJECT dataObject, BOOL autoRelease) {
    Release();
    m_lpDataObject = dataObject;
    m_bAutoRelease = autoRelease;
}

LPDATAOBJECT COleDataObject::Detach() {
    const LPDATAOBJECT object = m_lpDataObject;
    m_lpDataObject = nullptr;
    return object;
}

void COleDataObject::Release() {
    if (m_lpDataObject && m_bAutoRelease)
        m_lpDataObject->Release();
    m_lpDataObject = nullptr;
}

BOOL COleDataObject::AttachClipboard() {
    LPDATAOBJECT object = nullptr;
    if (FAILED(::OleGetClipboard(&object)))
        return FALSE;
    Attach(object, TRUE);
    return TRUE;
}

BOOL COleDataObject::IsDataAvailable(CLIPFORMAT format, LPFORMATETC formatEtc) {
    FORMATETC wanted = formatEtc ? *formatEtc : GlobalFormat(format);
    if (!formatEtc)
        wanted.tymed = static_cast<DWORD>(-1);
    return m_lpDataObject && m_lpDataObject->QueryGetData(&wanted) == S_OK;
}

BOOL COleDataObject::GetData(CLIPFORMAT format, LPSTGMEDIUM medium, LPFORMATETC formatEtc) {
    FORMATETC wanted = formatEtc ? *formatEtc : GlobalFormat(format);
    return m_lpDataObject && m_lpDataObject->GetData(&wanted, medium) == S_OK;
}

HGLOBAL COleDataObject::GetGlobalData(CLIPFORMAT format, LPFORMATETC formatEtc) {
    STGMEDIUM medium{};
    if (!GetData(format, &medium, formatEtc))
        return nullptr;
    if (medium.tymed == TYMED_HGLOBAL && !medium.pUnkForRelease)
        return medium.hGlobal;
    const HGLOBAL copy = medium.tymed == TYMED_HGLOBAL ? CopyGlobal(medium.hGlobal) : nullptr;
    ::ReleaseStgMedium(&medium);
    return copy;
}

// The formats live in an object of their own, because a drop target or the clipboard may keep it longer than the
// source.
class COleDataSource::DataObject final : public IDataObject {
public:
    void Add(CLIPFORMAT format, HGLOBAL global) {
        for (Item &item : m_items)
            if (item.format == format) {
                ::GlobalFree(item.global);
                item.global = global;
                return;
            }
        m_items.push_back({format, global});
    }
    void Clear() {
        for (const Item &item : m_items)
            ::GlobalFree(item.global);
        m_items.clear();
    }

    STDMETHODIMP QueryInterface(REFIID id, void **object) override {
        if (!::IsEqualIID(id, IID_IUnknown) && !::IsEqualIID(id, IID_IDataObject)) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<IDataObject *>(this);
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(::InterlockedIncrement(&m_references)); }
    STDMETHODIMP_(ULONG) Release() override {
        const LONG left = ::InterlockedDecrement(&m_references);
        if (left == 0)
            delete this;
        return static_cast<ULONG>(left);
    }

    STDMETHODIMP GetData(FORMATETC *format, STGMEDIUM *medium) override {
        const Item *item = Find(format);
        if (!item)
            return DV_E_FORMATETC;
        *medium = STGMEDIUM{};
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = CopyGlobal(item->global);
        return medium->hGlobal ? S_OK : E_OUTOFMEMORY;
    }
    STDMETHODIMP QueryGetData(FORMATETC *format) override { return Find(format) ? S_OK : DV_E_FORMATETC; }
    STDMETHODIMP EnumFormatEtc(DWORD direction, IEnumFORMATETC **formats) override {
        *formats = nullptr;
        if (direction != DATADIR_GET)
            return E_NOTIMPL;
        try {
            std::vector<FORMATETC> all;
            for (const Item &item : m_items)
                all.push_back(GlobalFormat(item.format));
            return ::SHCreateStdEnumFmtEtc(static_cast<UINT>(all.size()), all.data(), formats);
        } catch (CException *e) {
            e->Delete();
            return E_OUTOFMEMORY;
        }
    }
    // What is offered cannot be changed by the receiver.
    STDMETHODIMP GetDataHere(FORMATETC *, STGMEDIUM *) override { return E_NOTIMPL; }
    STDMETHODIMP GetCanonicalFormatEtc(FORMATETC *, FORMATETC *out) override {
        out->ptd = nullptr;
        return DATA_S_SAMEFORMATETC;
    }
    STDMETHODIMP SetData(FORMATETC *, STGMEDIUM *, BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP DAdvise(FORMATETC *, DWORD, IAdviseSink *, DWORD *) override { return OLE_E_ADVISENOTSUPPORTED; }
    STDMETHODIMP DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    STDMETHODIMP EnumDAdvise(IEnumSTATDATA **) override { return OLE_E_ADVISENOTSUPPORTED; }

private:
    struct Item {
        CLIPFORMAT format;
        HGLOBAL global;
    };
    ~DataObject() { Clear(); }
    const Item *Find(const FORMATETC *format) const {
        if (!(format->tymed & TYMED_HGLOBAL) || format->dwAspect != DVASPECT_CONTENT)
            return nullptr;
        for (const Item &item : m_items)
            if (item.format == format->cfFormat)
                return &item;
        return nullptr;
    }

    LONG m_references = 1;
    std::vector<Item> m_items;
};

COleDataSource::COleDataSource() : m_data(new DataObject) {}

COleDataSource::~COleDataSource() {
    m_data->Release();
}

void COleDataSource::CacheGlobalData(CLIPFORMAT format, HGLOBAL global, LPFORMATETC) {
    m_data->Add(format, global);
}

void COleDataSource::Empty() {
    m_data->Clear();
}

void COleDataSource::SetClipboard() {
    ::OleSetClipboard(m_data);
    delete this;
}

void COleDataSource::FlushClipboard() {
    ::OleFlushClipboard();
}

namespace {

// A drop source of the application as the system sees it, for the length of one drag.
class SourceInterface final : public IDropSource {
public:
    explicit SourceInterface(COleDropSource *source) : m_source(source) {}
    STDMETHODIMP QueryInterface(REFIID id, void **object) override {
        const bool known = ::IsEqualIID(id, IID_IUnknown) || ::IsEqualIID(id, IID_IDropSource);
        *object = known ? static_cast<IDropSource *>(this) : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP QueryContinueDrag(BOOL escape, DWORD keys) override {
        return Contain(DRAGDROP_S_CANCEL, [&] { return m_source->QueryContinueDrag(escape, keys); });
    }
    STDMETHODIMP GiveFeedback(DWORD effect) override {
        return Contain(DRAGDROP_S_USEDEFAULTCURSORS, [&] { return m_source->GiveFeedback(effect); });
    }

private:
    // No exception may pass into the system.
    template <class METHOD> static HRESULT Contain(HRESULT failed, METHOD method) {
        try {
            return method();
        } catch (CException *e) {
            e->Delete();
        } catch (const std::exception &) {
        }
        return failed;
    }

    COleDropSource *m_source;
};

} // namespace

DROPEFFECT COleDataSource::DoDragDrop(DWORD effects, LPCRECT startDrag, COleDropSource *source) {
    COleDropSource plain;
    if (!source)
        source = &plain;
    if (startDrag) {
        source->m_rectStartDrag = *startDrag;
    } else {
        CPoint cursor;
        ::GetCursorPos(&cursor);
        source->m_rectStartDrag.SetRect(cursor, cursor);
        source->m_rectStartDrag.InflateRect(::GetSystemMetrics(SM_CXDRAG), ::GetSystemMetrics(SM_CYDRAG));
    }
    const bool atOnce = source->m_rectStartDrag.IsRectNull();
    if (atOnce)
        source->m_bDragStarted = TRUE;
    else if (!source->OnBeginDrag(CWnd::FromHandle(::GetActiveWindow())))
        return DROPEFFECT_NONE;
    SourceInterface sourceInterface(source);
    DWORD effect = DROPEFFECT_NONE;
    const HRESULT result = ::DoDragDrop(m_data, &sourceInterface, effects, &effect);
    return result == DRAGDROP_S_DROP ? effect : DROPEFFECT_NONE;
}
