// The history of changes of the view: column widths, row heights, heading sizes, order and hiding of columns.
// Cell data is never in it; the data source keeps the undo of data.
#pragma once

#include <afx.h>
#include <afxtempl.h>

class ORVANE_API CCommand {
public:
    virtual ~CCommand() = default;
    virtual bool Exec() = 0;
    virtual bool UnExec() = 0;
};

// Does nothing; the sentinel of each list.
class ORVANE_API CNullCommand : public CCommand {
public:
    bool Exec() override { return true; }
    bool UnExec() override { return true; }
};

// Owns its commands. The head is the newest, the sentinel is always the tail. Everything newer than the current
// position can be redone; with nothing to undo the current position is the sentinel's.
class ORVANE_API CCommandListMgr {
public:
    explicit CCommandListMgr(int maxCommands);
    virtual ~CCommandListMgr();
    CCommandListMgr(const CCommandListMgr &) = delete;
    CCommandListMgr &operator=(const CCommandListMgr &) = delete;

    // Takes the command in every case; false when the depth keeps none. The caller has applied the change.
    bool AddCommand(CCommand *command);
    bool CanUndo() const;
    bool CanRedo() const;
    // Moves back one, and undoes it when `execute` is set. What the command answers is not looked at.
    bool Undo(bool execute);
    bool Redo();
    // The oldest go first. When the current command is among them nothing is left to undo, and what was undone
    // stays to be redone as far as the depth allows.
    void SetMaxCommands(int maxCommands);
    int GetMaxCommands() const { return m_nMaxCommands; }
    void Empty();

private:
    int CountCommands() const { return static_cast<int>(m_List.GetCount()) - 1; }
    void RemoveHead();
    void RemoveOldest();

    CList<CCommand *, CCommand *> m_List;
    POSITION m_posCurrent;
    POSITION m_posBase;
    int m_nMaxCommands;
};
