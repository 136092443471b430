#include "host/LookupPropertiesDlg.h"

#include "host/Resource.h"
#include "lookup/LookupRegKey.h"

CLookupPropertiesDlg::CLookupPropertiesDlg(const CLookupProperties &properties, CWnd *parent)
    : CDialog(IDD_LOOKUP_PROPERTIES, parent), m_properties(properties) {}

// A proposal of the compiler's would always be the same: the last choice is more often right.
bool CLookupPropertiesDlg::Ask(CLookupProperties &properties, CWnd *parent) {
    CLookupRegKey registry;
    CLookupProperties proposed = properties;
    registry.GetLookupTableProperties(&proposed.m_caseSensitive, &proposed.m_acceptEmptyCells,
                                      &proposed.m_enableValidation, &proposed.m_sortMenuItems);
    CLookupPropertiesDlg dialog(proposed, parent);
    if (dialog.DoModal() != IDOK)
        return false;
    properties = dialog.m_properties;
    registry.SetLookupTableProperties(properties.m_caseSensitive, properties.m_acceptEmptyCells,
                                      properties.m_enableValidation, properties.m_sortMenuItems);
    return true;
}

void CLookupPropertiesDlg::DoDataExchange(CDataExchange *exchange) {
    CDialog::DoDataExchange(exchange);
    const auto check = [exchange](int id, bool &value) {
        int state = value;
        DDX_Check(exchange, id, state);
        value = state != 0;
    };
    check(IDC_LOOKUP_CASE, m_properties.m_caseSensitive);
    check(IDC_LOOKUP_EMPTY, m_properties.m_acceptEmptyCells);
    check(IDC_LOOKUP_ENABLE, m_properties.m_enableValidation);
    check(IDC_LOOKUP_SORT, m_properties.m_sortMenuItems);
}
