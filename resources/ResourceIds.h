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

#define IDD_YES_NO_CANCEL_ALL 144
#define IDC_ASK_NO 1004
#define IDC_ASK_ALL 1010
#define IDC_ASK_YES 1014
#define IDC_ASK_CANCEL 1016
#define IDC_ASK_MESSAGE 2134

#define IDD_LOCK_COLUMNS 161
#define IDC_LOCK_COUNT 1001
#define IDC_LOCK_SPIN 1016

#define IDD_LOOKUP_NEW_PASSWORD 175
#define IDD_LOOKUP_OLD_PASSWORD 176
#define IDC_LOOKUP_CONFIRM 1034
#define IDC_LOOKUP_PASSWORD 4001
