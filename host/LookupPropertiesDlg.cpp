#include "host/LookupPropertiesDlg.h"

#include "host/Resource.h"

CLookupPropertiesDlg::CLookupPropertiesDlg(const CLookupProperties &properties, CWnd *parent)
    : CDialog(IDD_LOOKUP_PROPERTIES, parent), m_properties(properties) {}

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
