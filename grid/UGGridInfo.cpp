#include "grid/UGGridInfo.h"

#include "grid/UGDrawRules.h"

namespace {

constexpr int kDefaultColWidthPx = 100;
constexpr int kDefaultRowHeightPx = 20;
constexpr int kDefaultHeadingHeightPx = 20;
constexpr int kDefaultSideWidthPx = 50;

} // namespace

CUGGridInfo::CUGGridInfo() {
    m_cols.m_defaultSize = kDefaultColWidthPx;
    m_rows.m_defaultSize = kDefaultRowHeightPx;
    m_topHeadingHeight = kDefaultHeadingHeightPx;
    m_sideHeadingWidth = kDefaultSideWidthPx;
    m_gridDefault.SetDataType(UGCELL_DATA_TEXT);
    m_gridDefault.SetReadOnly(0);
    m_gridDefault.SetAlignment(UG_ALIGN_LEFT);
    m_gridDefault.SetBorder(UG_BDR_RTHIN | UG_BDR_BTHIN);
    m_headingDefault.SetAlignment(UG_ALIGN_HCENTER | UG_ALIGN_VCENTER);
    m_headingDefault.SetBorder(UG_BDR_RAISED);
    m_headingDefault.SetTextColor(0);
}

void CUGGridInfo::ScaleDefaults(int dotsPerInch) {
    m_dotsPerInch = dotsPerInch;
    const auto scale = [&](int &size, int standard) {
        if (size == standard)
            size = UGScaleToDpi(standard, dotsPerInch);
    };
    scale(m_cols.m_defaultSize, kDefaultColWidthPx);
    scale(m_rows.m_defaultSize, kDefaultRowHeightPx);
    scale(m_topHeadingHeight, kDefaultHeadingHeightPx);
    scale(m_sideHeadingWidth, kDefaultSideWidthPx);
}

void CUGGridInfo::FitDefaultsToText(int cellTextHeight, int headingTextHeight) {
    const auto fit = [&](int &size, int standard, int textHeight) {
        if (size == UGScaleToDpi(standard, m_dotsPerInch))
            size = UGLineHeight(standard, m_dotsPerInch, textHeight);
    };
    const int before = m_rows.m_defaultSize;
    fit(m_rows.m_defaultSize, kDefaultRowHeightPx, cellTextHeight);
    std::replace(m_rows.m_sizes.begin(), m_rows.m_sizes.end(), before, m_rows.m_defaultSize);
    fit(m_topHeadingHeight, kDefaultHeadingHeightPx, headingTextHeight);
}

void CUGGridInfo::SetDefaultColours(COLORREF text, COLORREF back, COLORREF hText, COLORREF hBack,
                                    COLORREF heading) {
    const COLORREF now[] = {text, back, hText, hBack, heading};
    const auto follow = [&](int which, CUGCell &cell, COLORREF (CUGCell::*get)() const,
                            int (CUGCell::*set)(COLORREF)) {
        if (!m_hasSystemColours || (cell.*get)() == m_systemColours[which])
            (cell.*set)(now[which]);
    };
    const auto followAll = [&](CUGCell &cell) {
        follow(0, cell, &CUGCell::GetTextColor, &CUGCell::SetTextColor);
        follow(1, cell, &CUGCell::GetBackColor, &CUGCell::SetBackColor);
        follow(2, cell, &CUGCell::GetHTextColor, &CUGCell::SetHTextColor);
        follow(3, cell, &CUGCell::GetHBackColor, &CUGCell::SetHBackColor);
    };
    followAll(m_gridDefault);
    for (const auto &column : m_colDefaults)
        followAll(*column);
    follow(4, m_headingDefault, &CUGCell::GetBackColor, &CUGCell::SetBackColor);
    std::copy(std::begin(now), std::end(now), m_systemColours);
    m_hasSystemColours = true;
}

void CUGGridInfo::ResizeColumns(int count) {
    const auto old = m_colDefaults.size();
    const auto wanted = static_cast<size_t>(count);
    std::vector<std::unique_ptr<CUGCell>> defaults, headings;
    for (size_t col = old; col < wanted; ++col) {
        defaults.push_back(std::make_unique<CUGCell>(m_gridDefault));
        headings.push_back(std::make_unique<CUGCell>(m_cornerHeading));
    }
    m_colDefaults.reserve(wanted);
    m_colHeadings.reserve(wanted);
    m_cols.m_sizes.reserve(wanted);
    m_colDefaults.resize(std::min(old, wanted));
    m_colHeadings.resize(std::min(old, wanted));
    for (size_t i = 0; i < defaults.size(); ++i) {
        m_colDefaults.push_back(std::move(defaults[i]));
        m_colHeadings.push_back(std::move(headings[i]));
    }
    m_cols.m_sizes.resize(wanted, m_cols.m_defaultSize);
    m_cols.m_count = count;
    m_lockedCols = std::min(m_lockedCols, count);
}

void CUGGridInfo::ResizeRows(long count) {
    if (!m_rows.m_uniform) {
        if (count >= kIndividualRowsMax) {
            m_rows.m_sizes = {};
            m_rows.m_uniform = true;
        } else {
            m_rows.m_sizes.resize(count, m_rows.m_defaultSize);
        }
    }
    m_rows.m_count = count;
}

int CUGGridInfo::SetUniformRowHeight(int flag) {
    if (flag == 1) {
        m_rows.m_sizes = {};
        m_rows.m_uniform = true;
        return GRID_SUCCESS;
    }
    if (m_rows.m_count > kRebuildHeightsMax)
        return GRID_ERROR;
    m_rows.m_sizes.assign(m_rows.m_count, m_rows.m_defaultSize);
    m_rows.m_uniform = false;
    return GRID_SUCCESS;
}

int CUGGridInfo::SetRowHeight(long row, int height) {
    if (!m_rows.Contains(row) || height < 0)
        return GRID_ERROR;
    if (m_rows.m_uniform)
        m_rows.m_defaultSize = height;
    else
        m_rows.m_sizes[row] = height;
    return GRID_SUCCESS;
}

int CUGGridInfo::GetRowHeight(long row, int *height) const {
    // With individual heights no range is prescribed; what lies outside has no height to tell.
    if (!m_rows.Contains(row)) {
        if (m_rows.m_uniform)
            return GRID_ERROR;
        *height = m_rows.m_defaultSize;
        return GRID_SUCCESS;
    }
    *height = m_rows.SizeOf(row);
    return GRID_SUCCESS;
}

int CUGGridInfo::SetColWidth(int col, int width) {
    if (!m_cols.Contains(col) || width < 0)
        return GRID_ERROR;
    m_cols.m_sizes[col] = width;
    return GRID_SUCCESS;
}

int CUGGridInfo::GetColWidth(int col, int *width) const {
    if (!m_cols.Contains(col))
        return GRID_ERROR;
    *width = m_cols.SizeOf(col);
    return GRID_SUCCESS;
}
