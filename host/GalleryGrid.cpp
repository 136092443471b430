#include "host/GalleryGrid.h"

#include <cstring>
#include <iterator>

IMPLEMENT_DYNAMIC(CGalleryGrid, CUGCtrl)

namespace {

constexpr int kSamples = 4;
constexpr int kTall = 46; // row heights, pixels at 96 dots an inch as all sizes here
constexpr int kLow = 24;
constexpr COLORREF kNone = 0xFFFFFFFF;

struct Sample {
    const char *text = "";
    int type = 0;
    int style = -1;
    int align = -1;
    int border = -1;
    const char *label = nullptr;
    const char *mask = nullptr;
    bool readOnly = false;
    COLORREF colour = kNone;
    COLORREF back = kNone;
};

struct Row {
    const char *name;
    const char *note;
    int height;
    Sample samples[kSamples];
};

constexpr short kLeft = UG_ALIGN_LEFT, kCentre = UG_ALIGN_HCENTER, kRight = UG_ALIGN_RIGHT;
constexpr short kMiddle = UG_ALIGN_VCENTER, kBottom = UG_ALIGN_BOTTOM;
constexpr int kThin = 15, kMedium = 240, kThick = 3840; // lines at all four sides
constexpr const char *kLong = "A longer text that does not fit into its cell";
constexpr const char *kCities = "Bergen\nBrest\nCadiz\nGenoa\nHamburg\nOdessa\n";

const Row kRows[] = {
    {"Text",
     "Type into a cell, or press F2 or Enter.",
     kLow,
     {{.text = "Edit me"},
      {.text = "Read only", .readOnly = true, .back = RGB(240, 240, 240)},
      {.text = "text", .style = UG_STYLE_LABEL, .label = "Its label shows"},
      {.text = "Colours", .colour = RGB(160, 0, 0), .back = RGB(255, 248, 200)}}},
    {"Aligned at the top",
     "",
     kTall,
     {{.text = "left", .align = kLeft},
      {.text = "centre", .align = kCentre},
      {.text = "right", .align = kRight}}},
    {"Aligned in the middle",
     "",
     kTall,
     {{.text = "left", .align = kLeft | kMiddle},
      {.text = "centre", .align = kCentre | kMiddle},
      {.text = "right", .align = kRight | kMiddle}}},
    {"Aligned at the bottom",
     "",
     kTall,
     {{.text = "left", .align = kLeft | kBottom},
      {.text = "centre", .align = kCentre | kBottom},
      {.text = "right", .align = kRight | kBottom}}},
    {"Word wrap",
     "",
     kTall,
     {{.text = kLong, .style = UG_STYLE_WORDWRAP, .align = kLeft},
      {.text = kLong, .style = UG_STYLE_WORDWRAP, .align = kCentre},
      {.text = kLong, .style = UG_STYLE_WORDWRAP, .align = kRight}}},
    {"Too long",
     "Cut, shortened, and short enough.",
     kLow,
     {{.text = kLong},
      {.text = kLong, .style = UG_STYLE_ELLIPSIS},
      {.text = "Fits", .style = UG_STYLE_ELLIPSIS}}},
    {"Border lines",
     "One, two and three pixels; a pen of its own.",
     kTall,
     {{.text = "thin", .align = kCentre | kMiddle, .border = kThin},
      {.text = "medium", .align = kCentre | kMiddle, .border = kMedium},
      {.text = "thick", .align = kCentre | kMiddle, .border = kThick},
      {.text = "red", .align = kCentre | kMiddle, .border = kMedium}}},
    {"Frames",
     "",
     kTall,
     {{.text = "recessed", .align = kCentre | kMiddle, .border = UG_BDR_RECESSED, .back = RGB(224, 224, 224)},
      {.text = "raised", .align = kCentre | kMiddle, .border = UG_BDR_RAISED, .back = RGB(224, 224, 224)}}},
    {"Bitmap",
     "With the cell's background, and with its own.",
     kTall,
     {{.text = "disc", .align = kLeft | kMiddle, .back = RGB(150, 200, 240)},
      {.text = "disc", .style = UG_STYLE_KEEP_BITMAP, .align = kLeft | kMiddle, .back = RGB(150, 200, 240)}}},
    {"Mask",
     "Digits; letters and digits; anything.",
     kLow,
     {{.text = "12-34", .mask = "99\\-99"},
      {.text = "AB 123", .mask = "LL 000"},
      {.text = "x/y", .mask = "&/&"}}},
    {"Check box",
     "Click the box or press Space.",
     kLow,
     {{.text = "0", .type = kCheckBoxTypeId, .style = UG_STYLE_LABEL, .label = "flat"},
      {.text = "1", .type = kCheckBoxTypeId, .style = UG_STYLE_LABEL | kCheckRecessed, .label = "recessed"},
      {.text = "1", .type = kCheckBoxTypeId, .style = UG_STYLE_LABEL | kCheckRaised, .label = "raised"},
      {.text = "1", .type = kCheckBoxTypeId, .style = UG_STYLE_LABEL | kCheckFilled, .label = "filled"}}},
    {"Drop list",
     "Enter or Ctrl+Down opens. The second button hides.",
     kLow,
     {{.text = "Bergen", .type = kDropListTypeId, .label = kCities},
      {.text = "Cadiz", .type = kDropListTypeId, .style = kHideButtonStyle, .label = kCities}}},
    {"Spin button",
     "",
     kLow,
     {{.text = "10", .type = kSpinTypeId, .align = kRight | kMiddle},
      {.text = "-5", .type = kSpinTypeId, .align = kRight | kMiddle}}},
    {"Ellipsis button", "The button tells the program.", kLow, {{.text = "Press", .type = kEllipsisTypeId}}},
    {"Progress",
     "The last two stand for 150 and -3.",
     kLow,
     {{.text = "30", .type = kProgressTypeId},
      {.text = "75", .type = kProgressTypeId, .style = 1, .label = "Three quarters"},
      {.text = "150", .type = kProgressTypeId},
      {.text = "-3", .type = kProgressTypeId}}},
    {"Automatic font",
     "Size the column or the row.",
     kTall,
     {{.text = "Large", .type = kAutoFontTypeId, .align = kCentre | kMiddle},
      {.text = "Somewhat smaller", .type = kAutoFontTypeId, .align = kCentre | kMiddle}}},
    {"Arrows",
     "",
     kTall,
     {{.type = kArrowTypeId, .style = CUGArrowType::kLeft, .colour = RGB(0, 90, 160)},
      {.type = kArrowTypeId, .style = CUGArrowType::kUp, .colour = RGB(0, 90, 160)},
      {.type = kArrowTypeId, .style = CUGArrowType::kRight, .colour = RGB(0, 90, 160)},
      {.type = kArrowTypeId, .style = CUGArrowType::kDown, .colour = RGB(0, 90, 160)}}},
    {"Joined cells",
     "Two columns and two rows as one cell.",
     kLow,
     {{.text = "Four cells", .align = kCentre | kMiddle, .back = RGB(226, 240, 217)}}},
    {"", "", kLow, {}},
};

constexpr long kBorderRow = 6, kBitmapRow = 8, kJoinRow = 17;

enum MenuItem { kCopyText = 1000, kBlankCell }; // items of the popup menu reach the program from 1000 on

enum Tab { kFrameTab = 1, kCellTab, kRowTab };

CUGCell CellOf(const Sample &sample) {
    CUGCell cell;
    cell.SetText(sample.text);
    cell.SetCellType(sample.type);
    cell.SetAlignment(static_cast<short>(sample.align >= 0 ? sample.align : kLeft | kMiddle));
    if (sample.style >= 0)
        cell.SetCellTypeEx(sample.style);
    if (sample.border >= 0)
        cell.SetBorder(static_cast<short>(sample.border));
    if (sample.label != nullptr)
        cell.SetLabelText(sample.label);
    if (sample.mask != nullptr)
        cell.SetMask(sample.mask);
    if (sample.readOnly)
        cell.SetReadOnly(1);
    if (sample.colour != kNone)
        cell.SetTextColor(sample.colour);
    if (sample.back != kNone)
        cell.SetBackColor(sample.back);
    if (sample.type == kCheckBoxTypeId) {
        cell.SetNumberDecimals(0); // kept with a number only
        cell.SetNumber(cell.GetNumber());
    }
    return cell;
}

} // namespace

void CGalleryGrid::OnSetup() {
    MakeDrawingObjects();
    AddCellType(&m_ellipsis);
    SetDefaultFont(&m_font);
    MakeColumns();
    SetNumberRows(std::size(kRows));
    for (long row = 0; row < static_cast<long>(std::size(kRows)); ++row)
        MakeRow(row);
    MakeBitmaps(kBitmapRow);
    MakeJoin(0, kJoinRow, 2, 2);
    CUGCell red;
    GetCellRaw(kSamples - 1, kBorderRow, &red);
    red.SetBorderColor(&m_redPen);
    SetCell(kSamples - 1, kBorderRow, &red);
    AddTab("Frame", kFrameTab);
    AddTab("Highlighted Cell", kCellTab);
    AddTab("Highlighted Row", kRowTab);
    SetTabWidth(ScaledPx(290));
    GetPopupMenu()->AppendMenu(MF_STRING, kCopyText, "&Copy Text");
    GetPopupMenu()->AppendMenu(MF_STRING, kBlankCell, "&Blank Cell");
    EnablePopupMenu(1);
    EnableScrollHints(1, 0);
    m_ready = true;
}

void CGalleryGrid::MakeDrawingObjects() {
    constexpr int kTenthsOfPoints = 90;
    constexpr int kDiscPx = 24;
    m_font.CreatePointFont(kTenthsOfPoints, "Arial");
    m_redPen.CreatePen(PS_SOLID, 1, RGB(200, 0, 0));
    CClientDC screen(this);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    m_disc.CreateCompatibleBitmap(&screen, kDiscPx, kDiscPx);
    CBitmap *old = memory.SelectObject(&m_disc);
    memory.FillSolidRect(0, 0, kDiscPx, kDiscPx, RGB(255, 255, 255));
    CBrush brush(RGB(230, 120, 0));
    CBrush *oldBrush = memory.SelectObject(&brush);
    memory.Ellipse(1, 1, kDiscPx - 1, kDiscPx - 1);
    memory.SelectObject(oldBrush);
    memory.SelectObject(old);
}

void CGalleryGrid::MakeColumns() {
    constexpr int kSampleWidth = 130;
    constexpr int kNoteWidth = 360;
    constexpr int kNameWidth = 150;
    SetNumberCols(kSamples + 1);
    SetSH_Width(ScaledPx(kNameWidth));
    SetTH_Height(ScaledRowHeight(kLow));
    for (int col = 0; col <= kSamples; ++col) {
        CString name("How to Try");
        if (col < kSamples)
            name.Format("Sample %d", col + 1);
        QuickSetText(col, -1, name);
        SetColWidth(col, ScaledPx(col < kSamples ? kSampleWidth : kNoteWidth));
    }
}

void CGalleryGrid::MakeRow(long row) {
    SetRowHeight(row, ScaledPx(kRows[row].height));
    for (int col = 0; col < kSamples; ++col) {
        CUGCell cell = CellOf(kRows[row].samples[col]);
        SetCell(col, row, &cell);
    }
    CUGCell note = CellOf({.text = kRows[row].note, .readOnly = true, .colour = RGB(90, 90, 90)});
    SetCell(kSamples, row, &note);
}

void CGalleryGrid::MakeBitmaps(long row) {
    for (int col = 0; col < 2; ++col) {
        CUGCell cell;
        GetCellRaw(col, row, &cell);
        cell.SetBitmap(&m_disc);
        SetCell(col, row, &cell);
    }
}

void CGalleryGrid::MakeJoin(int col, long row, int cols, long rows) {
    CUGCell cell;
    GetCellRaw(col, row, &cell);
    for (long y = row; y < row + rows; ++y) {
        for (int x = col; x < col + cols; ++x) {
            cell.SetJoin(x == col && y == row, col, row);
            SetCell(x, y, &cell);
        }
    }
}

void CGalleryGrid::OnGetCell(int col, long row, CUGCell *cell) {
    if (col < 0 && row >= 0 && row < static_cast<long>(std::size(kRows))) {
        cell->SetText(kRows[row].name);
        cell->SetAlignment(kLeft | kMiddle);
    }
}

void CGalleryGrid::OnKeyDown(UINT *key, int processed) {
    if (processed != UGCT_HANDLED && (*key == VK_F2 || *key == VK_RETURN))
        StartEdit();
}

void CGalleryGrid::OnCharDown(UINT *key, int processed) {
    if (processed != UGCT_HANDLED && *key >= ' ')
        StartEdit(static_cast<int>(*key));
}

void CGalleryGrid::OnDClicked(int, long, RECT *, POINT *, int processed) {
    if (processed != UGCT_HANDLED)
        StartEdit();
}

void CGalleryGrid::ChangeValue(int col, long row, long value) {
    CString text;
    text.Format("%ld", value);
    QuickSetText(col, row, text);
    RedrawCell(col, row);
}

void CGalleryGrid::OnCellTypeNotify(long id, int col, long row, long message, LPARAM param) {
    if (id == kSpinTypeId)
        ChangeValue(col, row, static_cast<long>(param) + (message == kSpinUp ? 1 : -1));
    else if (id == kEllipsisTypeId && message == kEllipsisPressed)
        AfxMessageBox("The button was pressed.", MB_ICONINFORMATION);
}

void CGalleryGrid::OnTabSelected(long id) {
    EnableRowHighlight(id == kRowTab);
    SetCurrentCellStyle(id == kCellTab ? 2 : 1);
    RedrawAll();
    Tell(id == kRowTab ? "Tab: Highlighted Row" : id == kCellTab ? "Tab: Highlighted Cell" : "Tab: Frame");
}

// --- What the program is told, shown to whoever tries the cells

void CGalleryGrid::Tell(const CString &event) {
    if (auto *frame = DYNAMIC_DOWNCAST(CFrameWnd, AfxGetMainWnd()))
        frame->SetMessageText(event);
}

CString CGalleryGrid::Describe(int col, long row) const {
    CString text;
    if (row >= 0 && row < static_cast<long>(std::size(kRows)) && col < kSamples)
        text.Format("%s, Sample %d", kRows[row].name, col + 1);
    return text;
}

CString CGalleryGrid::DescribeCurrentCell() const {
    return Describe(GetCurrentCol(), GetCurrentRow());
}

CString CGalleryGrid::CurrentText() {
    CUGCell cell;
    GetCell(GetCurrentCol(), GetCurrentRow(), &cell);
    return cell.GetText();
}

int CGalleryGrid::OnSetCell(int col, long row, CUGCell *cell) {
    if (m_ready && row >= 0)
        Tell(Describe(col, row) + " holds \"" + cell->GetText() + "\"");
    return 1;
}

void CGalleryGrid::OnColSized(int col, int *width) {
    CString text;
    text.Format("Column %d is %d pixels wide", col + 1, *width);
    if (col >= 0)
        Tell(text);
}

void CGalleryGrid::OnRowSized(long row, int *height) {
    CString text;
    text.Format("Row %ld is %d pixels high", row + 1, *height);
    Tell(text);
}

void CGalleryGrid::OnTopRowChange(long, long newRow) {
    if (newRow >= 0 && newRow < static_cast<long>(std::size(kRows)))
        Tell(CString("At the top: ") + kRows[newRow].name);
}

int CGalleryGrid::OnVScrollHint(long row, int, CUGHint *hint) {
    if (row >= 0 && row < static_cast<long>(std::size(kRows)))
        hint->SetText(kRows[row].name);
    return 1;
}

int CGalleryGrid::OnMenuStart(int col, long row, int section) {
    return section == UG_SECTION_GRID && col >= 0 && row >= 0;
}

void CGalleryGrid::OnMenuCommand(int col, long row, int, int item) {
    CUGCell cell;
    GetCell(col, row, &cell);
    if (item == kCopyText) {
        CopyCurrentText();
    } else if (cell.GetReadOnly() != 1) {
        QuickSetText(col, row, "");
        RedrawCell(col, row);
    }
}

void CGalleryGrid::CopyCurrentText() {
    if (CEdit *edit = GetEditControl()) {
        edit->Copy();
        return;
    }
    const CString text = CurrentText();
    const size_t bytes = static_cast<size_t>(text.GetLength()) + 1;
    const HGLOBAL memory = ::GlobalAlloc(GHND, bytes);
    if (memory == nullptr || !::OpenClipboard(m_hWnd)) {
        ::GlobalFree(memory);
        return;
    }
    std::memcpy(::GlobalLock(memory), static_cast<const char *>(text), bytes);
    ::GlobalUnlock(memory);
    ::EmptyClipboard();
    if (::SetClipboardData(CF_TEXT, memory) == nullptr)
        ::GlobalFree(memory);
    ::CloseClipboard();
    Tell("\"" + text + "\" copied");
}

DROPEFFECT CGalleryGrid::OnDragEnter(COleDataObject *data) {
    return data->IsDataAvailable(CF_TEXT) ? DROPEFFECT_COPY : DROPEFFECT_NONE;
}

DROPEFFECT CGalleryGrid::OnDragOver(COleDataObject *data, int col, long row) {
    CUGCell cell;
    if (col < 0 || GetCell(col, row, &cell) != GRID_SUCCESS || cell.GetReadOnly() == 1)
        return DROPEFFECT_NONE;
    return OnDragEnter(data);
}

DROPEFFECT CGalleryGrid::OnDragDrop(COleDataObject *data, int col, long row) {
    return OnDragOver(data, col, row);
}
