// CVAppInterface: the one service object that the host gives to the library. Every table, dialog and option
// comes through it. The library borrows it and never frees it.
//
// The order of the operations is part of the interface. The library never calls the reserved ones; they keep
// their places.
#pragma once

#include <afx.h>
#include <afxcoll.h>
#include <afxtempl.h>

#include "editorcore/EditorOptions.h"

class CEditorCore;
class CExecuteInfo;
class CFieldStatus;
class CLookupOptionsMgr;
class CUGDataSource;
class CWnd;

class CVAppInterface {
public:
    virtual void ReservedHostOperation1() {}
    virtual void ReservedHostOperation2() {}
    virtual void ReservedHostOperation3() {}
    virtual void ReservedHostOperation4() {}
    virtual void ReservedHostOperation5() {}

    // Show file and table (null for none) as this editor's title. The host may ask the editor, for instance
    // whether the file is modified.
    virtual void SetEditorTitle(const char *path, const char *table, CEditorCore *editor) = 0;
    // F6 or Ctrl+M was pressed in the grid.
    virtual void OnGridHotKey() = 0;
    // Fills `sets`, keyed by field name; false when the set cannot be had.
    virtual bool LoadXParmsSet(const char *setName,
                               CMap<CString, const char *, CExecuteInfo, CExecuteInfo &> *sets) = 0;
    virtual void GetAppTitle(CString &title) = 0;
    // Nonzero when the running long operation is to stop.
    virtual int CheckAbort() = 0;
    // A new, unopened source fitted to the path, or null. The caller owns it.
    virtual CUGDataSource *CreateDataSource(const char *path) = 0;
    virtual void ShowFileInformation(CUGDataSource *source) = 0;
    // The save-as dialog. `name` and `useFiltered` come with proposals and go back as chosen; false is cancel.
    virtual bool PromptSaveAs(CString &name, bool *useFiltered, bool filterAttached) = 0;
    virtual void ReservedHostOperation6() {}
    // Lets the user reorder the field names; false is cancel.
    virtual bool PromptFieldOrder(CStringArray *names) = 0;
    // The dialog of shown and hidden fields. It applies its result to the editor before it returns.
    virtual void PromptFieldVisibility(CStringArray &names, CArray<bool, bool> &shown) = 0;
    // `statuses` is null when there are none; true on OK.
    virtual bool PromptXParms(CStringArray &names, CStringArray &types, CArray<bool, bool> &visible,
                              CString lastSet, const char *path, CArray<CFieldStatus, CFieldStatus &> *statuses,
                              CString &chosenSet, CArray<CExecuteInfo *, CExecuteInfo *> &results) = 0;
    // The dialog belongs to the host; it sends `message` to `editor`.
    virtual void ShowFindDialog(bool inMultipleSelection, CWnd *editor, UINT message) = 0;
    virtual void ShowReplaceDialog(bool inMultipleSelection, CWnd *editor, UINT message) = 0;
    virtual CVEditorOptions *GetEditorOptions() = 0;
    // Widths in characters of the code and description fields of a new lookup source.
    virtual void GetDefaultFieldWidths(UINT *code, UINT *description) = 0;
    virtual bool EditLookupTableProperties(bool *caseSensitive, bool *acceptEmptyCells, bool *enableValidation,
                                           bool *sortMenuItems) = 0;
    virtual void GetLookupOptions(bool *validate, bool *validateOnKey, bool *resolveSubMenus,
                                  bool *allowPartialCodes, bool *beepOnInvalid, int *invalidAction,
                                  CString *replaceString, CString *prependString) = 0;
    virtual bool EditLookupUserOptions(bool *validate, bool *validateOnKey, bool *resolveSubMenus,
                                       bool *allowPartialCodes, bool *beepOnInvalid, int *invalidAction,
                                       CString *replaceString, CString *prependString, UINT *codeWidth,
                                       UINT *descriptionWidth) = 0;
    virtual void EditLookupAdminOptions(CLookupOptionsMgr *manager) = 0;
    virtual void SetDefaultFieldWidths(UINT code, UINT description) = 0;
    virtual bool EditFilter(int number, const char *path) = 0;
    virtual bool SelectFilter(int *filterNumber) = 0;
    // 1 begins, -1 ends, 0 restores; counted like nested calls.
    virtual void DoWaitCursor(int step) = 0;
    virtual void ShowMessage(const char *text) = 0;

protected:
    ~CVAppInterface() = default; // the library never deletes it
};
