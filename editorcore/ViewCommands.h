// The commands of the view's history: what each stores, and which pair of the editor's operations it calls with
// itself. The operations read the fields back.
#pragma once

#include "editorcore/CommandList.h"

#include <afxcoll.h>

// What the four have in common. `Command` is the class that derives from this.
template <class Editor, class Command> class CEditorCommand : public CCommand {
public:
    using Operation = bool (Editor::*)(Command *);

    bool Exec() override { return (m_pEditor->*m_exec)(static_cast<Command *>(this)); }
    bool UnExec() override { return (m_pEditor->*m_unExec)(static_cast<Command *>(this)); }

protected:
    CEditorCommand(Editor *editor, Operation exec, Operation unExec)
        : m_pEditor(editor), m_exec(exec), m_unExec(unExec) {}

private:
    Editor *m_pEditor; // owns the list that owns this
    Operation m_exec, m_unExec;
};

// The width of a column or the height of the rows, in pixels.
template <class Editor> class CSizingCommand : public CEditorCommand<Editor, CSizingCommand<Editor>> {
    using Base = CEditorCommand<Editor, CSizingCommand>;

public:
    CSizingCommand(int index, int oldSize, int newSize, Editor *editor, typename Base::Operation exec,
                   typename Base::Operation unExec)
        : Base(editor, exec, unExec), m_nIndex(index), m_nOldSize(oldSize), m_nNewSize(newSize) {}

    int m_nIndex; // grid column, or row
    int m_nOldSize, m_nNewSize;
};

// Both headings at once, in pixels.
template <class Editor>
class CHeadingsSizingCommand : public CEditorCommand<Editor, CHeadingsSizingCommand<Editor>> {
    using Base = CEditorCommand<Editor, CHeadingsSizingCommand>;

public:
    CHeadingsSizingCommand(int oldSideWidth, int newSideWidth, int oldTopHeight, int newTopHeight, Editor *editor,
                           typename Base::Operation exec, typename Base::Operation unExec)
        : Base(editor, exec, unExec), m_nOldSideWidth(oldSideWidth), m_nNewSideWidth(newSideWidth),
          m_nOldTopHeight(oldTopHeight), m_nNewTopHeight(newTopHeight) {}

    int m_nOldSideWidth, m_nNewSideWidth;
    int m_nOldTopHeight, m_nNewTopHeight;
    int m_nFrozenSpan = 0; // of the frozen columns that both side widths include
};

// The widths of columns that stand side by side, in pixels.
template <class Editor> class CMultiSizingCommand : public CEditorCommand<Editor, CMultiSizingCommand<Editor>> {
    using Base = CEditorCommand<Editor, CMultiSizingCommand>;

public:
    CMultiSizingCommand(int startCol, int currentCol, Editor *editor, typename Base::Operation exec,
                        typename Base::Operation unExec)
        : Base(editor, exec, unExec), m_nStartCol(startCol), m_nCurrentCol(currentCol) {}

    int m_nStartCol;
    int m_nCurrentCol;
    CArray<int, int> m_OldWidths, m_NewWidths; // of m_nStartCol and those behind it
};

// Which fields are shown, and in which order. For a hiding `before` holds the grid columns hidden and `after` the
// fields that stood there; otherwise both are display orders, whole.
template <class Editor> class CReorderColsCommand : public CEditorCommand<Editor, CReorderColsCommand<Editor>> {
    using Base = CEditorCommand<Editor, CReorderColsCommand>;

public:
    CReorderColsCommand(Editor *editor, typename Base::Operation exec, typename Base::Operation unExec)
        : Base(editor, exec, unExec) {}

    CUIntArray m_Before, m_After;
};
