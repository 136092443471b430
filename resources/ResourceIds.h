// Identifiers of the library's dialog templates and their controls. They are part of its interface: hosts that
// translate the library replace the templates by number.
#pragma once

#define IDD_INSERT_RECORDS 134
#define IDC_RECORDS_COUNT 1001
#define IDC_RECORDS_SPIN 1016
#define IDC_RECORDS_PROMPT 1027
#define IDC_RECORDS_NO_UNDO 2000

#define IDD_LARGE_UNDO 147
#define IDC_UNDO_CANCEL_PREVIOUS 1019
#define IDC_UNDO_STORE_ANYWAY 1020
