// Text dropped on the cells, and dragged out of the control.
#include "GridWindowTest.h"

namespace {

class DropGrid : public RecordingGrid {
public:
    DROPEFFECT OnDragEnter(COleDataObject *) override {
        m_asked += "enter ";
        return DROPEFFECT_COPY;
    }
    DROPEFFECT OnDragOver(COleDataObject *, int col, long row) override { return Asked("over", col, row); }
    DROPEFFECT OnDragDrop(COleDataObject *, int col, long row) override { return Asked("drop", col, row); }
    CUGDropTarget &Target() { return m_dropTarget; }
    CWnd *CellArea() { return &m_grid; }
    std::string m_asked;
    DROPEFFECT m_answer = DROPEFFECT_COPY;

private:
    DROPEFFECT Asked(const char *what, int col, long row) {
        m_asked += std::string(what) + "(" + std::to_string(col) + "," + std::to_string(row) + ") ";
        return m_answer;
    }
};

// Puts bytes on the clipboard, from where a data object takes them.
void Offer(UINT format, const char *bytes, size_t length) {
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, length);
    std::memcpy(::GlobalLock(memory), bytes, length);
    ::GlobalUnlock(memory);
    auto *source = new COleDataSource;
    source->CacheGlobalData(static_cast<CLIPFORMAT>(format), memory);
    source->SetClipboard();
}

class DropTest : public testing::Test {
protected:
    DropTest() {
        AfxOleInit();
        m_grid.CreateGrid(WS_VISIBLE, CRect(0, 0, 500, 300), &m_host, 100);
        m_grid.SetNumberCols(3);
        m_grid.SetNumberRows(5);
        m_grid.SetFocus();
        PumpAll();
    }
    ~DropTest() override {
        m_data.Release();
        m_grid.DestroyWindow();
        ::OleSetClipboard(nullptr);
    }
    void OfferText(const char *text) {
        m_data.Release();
        Offer(CF_TEXT, text, std::strlen(text) + 1);
        m_data.AttachClipboard();
    }
    CPoint In(int col, long row) {
        CRect rect;
        m_grid.GetCellRect(col, row, &rect);
        return rect.CenterPoint();
    }
    BOOL Drop(CPoint point) {
        return m_grid.Target().OnDrop(m_grid.CellArea(), &m_data, DROPEFFECT_COPY, point);
    }

    HostWindow m_host;
    DropGrid m_grid;
    COleDataObject m_data;
};

TEST_F(DropTest, EnteringAndMovingAskTheControl) {
    OfferText("x");
    CWnd *cells = m_grid.CellArea();
    EXPECT_EQ(DROPEFFECT(DROPEFFECT_COPY), m_grid.Target().OnDragEnter(cells, &m_data, 0, In(1, 2)));
    EXPECT_EQ(DROPEFFECT(DROPEFFECT_COPY), m_grid.Target().OnDragOver(cells, &m_data, 0, In(1, 2)));
    m_grid.m_answer = DROPEFFECT_NONE;
    EXPECT_EQ(DROPEFFECT(DROPEFFECT_NONE), m_grid.Target().OnDragOver(cells, &m_data, 0, CPoint(400, 250)));
    EXPECT_EQ("enter over(1,2) over(-1,-1) ", m_grid.m_asked);
}

TEST_F(DropTest, DroppedTextIsPastedFromItsCellOn) {
    OfferText("a\tb\r\nc");
    EXPECT_TRUE(Drop(In(1, 2)));
    EXPECT_EQ("drop(1,2) ", m_grid.m_asked);
    EXPECT_EQ("cur=(1,2) view=(0,0) size=3x5", m_grid.State());
    EXPECT_EQ("a b c", m_grid.Text(1, 2) + " " + m_grid.Text(2, 2) + " " + m_grid.Text(1, 3));
}

TEST_F(DropTest, ARefusedDropChangesNothing) {
    OfferText("a");
    m_grid.m_answer = DROPEFFECT_NONE;
    EXPECT_FALSE(Drop(In(1, 2)));
    EXPECT_EQ("cur=(0,0) view=(0,0) size=3x5", m_grid.State());
    EXPECT_EQ("", m_grid.Text(1, 2));
}

TEST_F(DropTest, WhereTheControlDoesNotGoNothingIsPasted) {
    OfferText("a");
    m_grid.m_vetoes.insert("CanMove");
    EXPECT_FALSE(Drop(In(1, 2)));
    EXPECT_FALSE(Drop(CPoint(400, 250)));
    EXPECT_EQ("", m_grid.Text(0, 0) + m_grid.Text(1, 2));
}

TEST_F(DropTest, DataThatIsNoTextIsNotPasted) {
    Offer(::RegisterClipboardFormatA("Grid test"), "abcd", 4);
    m_data.AttachClipboard();
    EXPECT_FALSE(Drop(In(1, 2)));
    EXPECT_EQ("drop(1,2) ", m_grid.m_asked);
    EXPECT_EQ("", m_grid.Text(1, 2));
}

TEST_F(DropTest, AnOpenEditEndsBeforeTheText) {
    OfferText("dropped");
    m_grid.GotoCell(1, 2);
    m_grid.StartEdit();
    TypeText(m_grid.Edit(), "typed");
    EXPECT_TRUE(Drop(In(1, 2)));
    EXPECT_EQ(nullptr, m_grid.Edit());
    EXPECT_EQ("dropped", m_grid.Text(1, 2));
}

// Drops at once, where the pointer is.
class DropsAtOnce : public COleDropSource {
public:
    SCODE QueryContinueDrag(BOOL, DWORD) override { return m_asked++ > 0 ? DRAGDROP_S_DROP : S_OK; }
    int m_asked = 0;
};

TEST_F(DropTest, ADragFromTheControlToItselfGoesThroughOle) {
    CPoint pointer = In(2, 3);
    m_grid.CellArea()->ClientToScreen(&pointer);
    ::SetCursorPos(pointer.x, pointer.y);
    // The system asks the source when something moves.
    const UINT_PTR timer = ::SetTimer(
        nullptr, 0, 5, [](HWND, UINT, UINT_PTR, DWORD) { ::mouse_event(MOUSEEVENTF_MOVE, 0, 0, 0, 0); });
    DropsAtOnce source;
    EXPECT_EQ(DROPEFFECT(DROPEFFECT_COPY), m_grid.StartDrag("moved", &source, DROPEFFECT_COPY));
    EXPECT_EQ("moved", m_grid.Text(2, 3));
    EXPECT_EQ(0u, m_grid.m_asked.find("enter "));
    DropsAtOnce again;
    m_grid.StartDrag("other", &again, DROPEFFECT_COPY);
    ::KillTimer(nullptr, timer);
    EXPECT_EQ("other", m_grid.Text(2, 3));
}

TEST_F(DropTest, TheTargetIsTakenBackWithTheWindow) {
    const HWND cells = m_grid.Cells();
    EXPECT_EQ(cells, m_grid.Target().m_hWnd);
    m_grid.DestroyWindow();
    EXPECT_EQ(nullptr, m_grid.Target().m_hWnd);
    m_grid.CreateGrid(WS_VISIBLE, CRect(0, 0, 500, 300), &m_host, 100);
    EXPECT_EQ(m_grid.Cells(), m_grid.Target().m_hWnd);
}

} // namespace
