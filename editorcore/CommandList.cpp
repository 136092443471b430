#include "editorcore/CommandList.h"

#include <memory>

namespace {

constexpr int kBlockSize = 10;

} // namespace

CCommandListMgr::CCommandListMgr(int maxCommands) : m_List(kBlockSize), m_nMaxCommands(maxCommands) {
    auto sentinel = std::make_unique<CNullCommand>();
    m_posBase = m_List.AddHead(sentinel.get());
    sentinel.release();
    m_posCurrent = m_posBase;
}

CCommandListMgr::~CCommandListMgr() {
    while (!m_List.IsEmpty())
        delete m_List.RemoveHead();
}

void CCommandListMgr::RemoveHead() {
    delete m_List.RemoveHead();
}

void CCommandListMgr::RemoveOldest() {
    POSITION position = m_posBase;
    m_List.GetPrev(position);
    if (position == m_posCurrent)
        m_posCurrent = m_posBase;
    CCommand *command = m_List.GetAt(position);
    m_List.RemoveAt(position);
    delete command;
}

bool CCommandListMgr::AddCommand(CCommand *command) {
    std::unique_ptr<CCommand> owned(command);
    if (m_nMaxCommands < 1)
        return false;
    while (m_List.GetHeadPosition() != m_posCurrent && m_List.GetHeadPosition() != m_posBase)
        RemoveHead();
    while (CountCommands() >= m_nMaxCommands && CountCommands() > 0)
        RemoveOldest();
    m_posCurrent = m_List.AddHead(command);
    owned.release();
    return true;
}

bool CCommandListMgr::CanUndo() const {
    return CountCommands() > 0 && m_posCurrent != m_posBase;
}

bool CCommandListMgr::CanRedo() const {
    return CountCommands() > 0 && m_posCurrent != m_List.GetHeadPosition();
}

bool CCommandListMgr::Undo(bool execute) {
    if (!CanUndo())
        return false;
    CCommand *command = m_List.GetNext(m_posCurrent); // the next node is the older one
    if (command == nullptr)
        return false;
    if (execute)
        command->UnExec();
    return true;
}

bool CCommandListMgr::Redo() {
    if (!CanRedo())
        return false;
    m_List.GetPrev(m_posCurrent);
    m_List.GetAt(m_posCurrent)->Exec();
    return true;
}

void CCommandListMgr::SetMaxCommands(int maxCommands) {
    m_nMaxCommands = maxCommands;
    const int depth = maxCommands < 0 ? 0 : maxCommands;
    if (CountCommands() > depth && m_posCurrent == m_posBase) {
        Empty(); // everything was undone: all of it goes at once
        return;
    }
    while (CountCommands() > depth)
        RemoveOldest();
}

void CCommandListMgr::Empty() {
    while (m_List.GetHeadPosition() != m_posBase)
        RemoveHead();
    m_posCurrent = m_posBase;
}
