#include "dataeditor/FindReplaceData.h"

#include "search/PatternText.h"

#include <set>

class CFindReplaceData::CImpl {
public:
    virtual ~CImpl() { m_bValid = false; }

    std::string m_strFind;         // the pattern
    std::string m_strReplace;      // the format
    std::string m_strOriginalFind; // as typed, for messages
    bool m_bMatchCase = false;
    bool m_bAllFields = false;
    int m_nDirection = kSearchDown;
    int m_nMatchMode = 0;
    bool m_bUseRegex = false;
    bool m_bValid = true;
};

namespace {

CString TextOf(const std::string &text) {
    return CString(text.data(), static_cast<int>(text.size()));
}

std::set<const CFindReplaceData *> &LiveObjects() {
    static std::set<const CFindReplaceData *> live;
    return live;
}

std::string Typed(const char *text) {
    return text != nullptr ? text : "";
}

} // namespace

CFindReplaceData::CFindReplaceData() : m_pImpl(std::make_unique<CImpl>()) {
    LiveObjects().insert(this);
}

CFindReplaceData::~CFindReplaceData() {
    LiveObjects().erase(this);
}

const CFindReplaceData *CFindReplaceData::FromMessage(WPARAM address) {
    const auto found = LiveObjects().find(reinterpret_cast<const CFindReplaceData *>(address));
    return found != LiveObjects().end() ? *found : nullptr;
}

CFindReplaceData &CFindReplaceData::operator=(const CFindReplaceData &other) {
    if (this != &other)
        *m_pImpl = *other.m_pImpl;
    return *this;
}

void CFindReplaceData::SetData(const char *find, const char *replace, bool matchCase, bool allFields, int direction,
                               int matchMode, bool useRegex) {
    CImpl &data = *m_pImpl;
    data.m_strFind = data.m_strOriginalFind = Typed(find);
    data.m_strReplace = Typed(replace);
    data.m_bMatchCase = matchCase;
    data.m_bAllFields = allFields;
    data.m_nDirection = direction;
    data.m_nMatchMode = matchMode;
    const int mode = useRegex ? matchMode | Search::kTypedRegex : matchMode;
    if (!useRegex)
        data.m_strFind = Search::ConvertWildcardsToRegex(data.m_strFind);
    data.m_strFind = Search::RegexifyFindString(data.m_strFind, mode);
    data.m_strReplace = Search::RegexifyReplaceString(data.m_strReplace, data.m_strOriginalFind, mode);
}

void CFindReplaceData::GetFindString(CString &pattern) const {
    pattern = m_pImpl->m_bValid ? TextOf(m_pImpl->m_strFind) : CString();
}

void CFindReplaceData::GetReplaceString(CString &format) const {
    format = m_pImpl->m_bValid ? TextOf(m_pImpl->m_strReplace) : CString();
}

void CFindReplaceData::GetOriginalFindString(CString &typed) const {
    typed = m_pImpl->m_bValid ? TextOf(m_pImpl->m_strOriginalFind) : CString();
}

bool CFindReplaceData::IsMatchingCase() const {
    return m_pImpl->m_bValid && m_pImpl->m_bMatchCase;
}

bool CFindReplaceData::IsSearchingAllFields() const {
    return m_pImpl->m_bValid && m_pImpl->m_bAllFields;
}

bool CFindReplaceData::IsUsingRegex() const {
    return m_pImpl->m_bValid && m_pImpl->m_bUseRegex;
}

int CFindReplaceData::GetDirection() const {
    return m_pImpl->m_bValid ? m_pImpl->m_nDirection : kSearchDown;
}

void CFindReplaceData::SetDirection(int direction) {
    if (m_pImpl->m_bValid)
        m_pImpl->m_nDirection = direction;
}
