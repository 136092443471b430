#include "host/LookupOptions.h"

namespace {

const char *const kSection = "Lookup";

int ReadNumber(const char *entry, int otherwise) {
    return static_cast<int>(AfxGetApp()->GetProfileInt(kSection, entry, otherwise));
}

void Read(const char *entry, bool *value) {
    *value = ReadNumber(entry, *value) != 0;
}

void Read(const char *entry, UINT *value) {
    *value = static_cast<UINT>(ReadNumber(entry, static_cast<int>(*value)));
}

void Write(const char *entry, int value) {
    AfxGetApp()->WriteProfileInt(kSection, entry, value);
}

} // namespace

void CHostLookupOptions::Load() {
    Read("Validate", &m_validate);
    Read("ValidateOnKey", &m_validateOnKey);
    Read("ResolveSubMenus", &m_resolveSubMenus);
    Read("AllowPartialCodes", &m_allowPartialCodes);
    Read("BeepOnInvalid", &m_beepOnInvalid);
    m_invalidAction = ReadNumber("InvalidAction", m_invalidAction);
    m_replaceString = AfxGetApp()->GetProfileString(kSection, "ReplaceString");
    m_prependString = AfxGetApp()->GetProfileString(kSection, "PrependString");
    Read("CodeWidth", &m_codeWidth);
    Read("DescriptionWidth", &m_descriptionWidth);
}

void CHostLookupOptions::Save() const {
    Write("Validate", m_validate);
    Write("ValidateOnKey", m_validateOnKey);
    Write("ResolveSubMenus", m_resolveSubMenus);
    Write("AllowPartialCodes", m_allowPartialCodes);
    Write("BeepOnInvalid", m_beepOnInvalid);
    Write("InvalidAction", m_invalidAction);
    AfxGetApp()->WriteProfileString(kSection, "ReplaceString", m_replaceString);
    AfxGetApp()->WriteProfileString(kSection, "PrependString", m_prependString);
    SaveWidths();
}

void CHostLookupOptions::SaveWidths() const {
    Write("CodeWidth", static_cast<int>(m_codeWidth));
    Write("DescriptionWidth", static_cast<int>(m_descriptionWidth));
}
