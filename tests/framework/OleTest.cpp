#include "support.h"

namespace {

HGLOBAL Global(LPCSTR text) {
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, std::strlen(text) + 1);
    std::strcpy(static_cast<char *>(::GlobalLock(memory)), text);
    ::GlobalUnlock(memory);
    return memory;
}

// Frees the memory.
std::string TextOf(HGLOBAL memory) {
    if (!memory)
        return "(none)";
    const std::string text = static_cast<const char *>(::GlobalLock(memory));
    ::GlobalUnlock(memory);
    ::GlobalFree(memory);
    return text;
}

class TestTarget : public COleDropTarget {
public:
    std::string log;
    bool fail = false;

    DROPEFFECT OnDragEnter(CWnd *, COleDataObject *data, DWORD, CPoint) override {
        log += data->IsDataAvailable(CF_TEXT) ? "enter:text " : "enter ";
        return DROPEFFECT_MOVE;
    }
    DROPEFFECT OnDragOver(CWnd *, COleDataObject *, DWORD, CPoint) override {
        if (log.find("over") == std::string::npos)
            log += "over ";
        return DROPEFFECT_MOVE;
    }
    BOOL OnDrop(CWnd *, COleDataObject *data, DROPEFFECT effect, CPoint point) override {
        if (fail)
            AfxThrowMemoryException();
        CString where;
        where.Format("drop:%u@%d,%d:", static_cast<UINT>(effect), static_cast<int>(point.x), static_cast<int>(point.y));
        log += where.GetString() + TextOf(data->GetGlobalData(CF_TEXT));
        return TRUE;
    }
    void OnDragLeave(CWnd *) override { log += "leave "; }
};

// Lets go after some questions, so that no button has to be pressed.
class ShortSource : public COleDropSource {
public:
    int questions = 0;
    SCODE QueryContinueDrag(BOOL, DWORD) override { return ++questions < 4 ? S_OK : DRAGDROP_S_DROP; }
};

class Ole : public testing::Test {
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(AfxOleInit()); }
    static void TearDownTestSuite() { AfxOleTerm(); }

    void SetUp() override {
        wnd.CreateEx(WS_EX_TOPMOST, nullptr, "", WS_POPUP | WS_VISIBLE, 100, 100, 200, 200, nullptr, nullptr);
        ASSERT_TRUE(target.Register(&wnd));
        ::SetCursorPos(130, 140);
    }
    DROPEFFECT Drag(DWORD allowed) {
        COleDataSource data;
        ShortSource source;
        data.CacheGlobalData(CF_TEXT, Global("dragged"));
        // The system asks when something moves.
        const UINT_PTR timer = ::SetTimer(nullptr, 0, 5, [](HWND, UINT, UINT_PTR, DWORD) {
            ::mouse_event(MOUSEEVENTF_MOVE, 0, 0, 0, 0);
        });
        const CRect atOnce;
        const DROPEFFECT effect = data.DoDragDrop(allowed, &atOnce, &source);
        ::KillTimer(nullptr, timer);
        return effect;
    }

    CWnd wnd;
    TestTarget target;
};

} // namespace

TEST_F(Ole, DropReachesTheWindow) {
    EXPECT_EQ(Drag(DROPEFFECT_COPY | DROPEFFECT_MOVE), static_cast<DROPEFFECT>(DROPEFFECT_MOVE));
    EXPECT_EQ(target.log, "enter:text over drop:2@30,40:dragged");
}

TEST_F(Ole, EffectIsOneThatTheSourceAllows) {
    EXPECT_EQ(Drag(DROPEFFECT_COPY), static_cast<DROPEFFECT>(DROPEFFECT_COPY));
    EXPECT_EQ(target.log, "enter:text over drop:1@30,40:dragged");
}

TEST_F(Ole, FailureInAHandlerIsContained) {
    target.fail = true;
    EXPECT_EQ(Drag(DROPEFFECT_MOVE), static_cast<DROPEFFECT>(DROPEFFECT_NONE));
}

TEST_F(Ole, WindowHasOneTargetUntilItIsRevoked) {
    TestTarget second;
    EXPECT_FALSE(second.Register(&wnd));
    target.Revoke();
    EXPECT_TRUE(second.Register(&wnd));
    wnd.DestroyWindow();
    EXPECT_EQ(second.m_hWnd, nullptr) << "revoked with its window";
}

TEST_F(Ole, ClipboardKeepsTheData) {
    COleDataSource *source = new COleDataSource;
    source->CacheGlobalData(CF_TEXT, Global("first"));
    source->CacheGlobalData(CF_TEXT, Global("copied"));
    source->SetClipboard();
    COleDataObject data;
    ASSERT_TRUE(data.AttachClipboard());
    EXPECT_TRUE(data.IsDataAvailable(CF_TEXT));
    EXPECT_FALSE(data.IsDataAvailable(CF_HDROP));
    EXPECT_EQ(TextOf(data.GetGlobalData(CF_TEXT)), "copied");
    data.Release();
    COleDataSource::FlushClipboard();
    ASSERT_TRUE(wnd.OpenClipboard());
    EXPECT_STREQ(static_cast<const char *>(::GlobalLock(::GetClipboardData(CF_TEXT))), "copied");
    ::EmptyClipboard();
    ::CloseClipboard();
}
