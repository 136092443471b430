#include "LookupFuzz.h"

#include "../support/MemoryFile.h"
#include "lookup/Archive.h"
#include "lookup/LookupTableFile.h"

#include <cstdlib>
#include <vector>

namespace {

constexpr int kMostNodes = 200; // that are looked at; shared lists make more of them than the file has bytes

// Reads the file; false when it is no table, which only an archive exception may tell.
bool Load(CLookupTableFile &table, const std::string &bytes) {
    MemoryFile file(bytes);
    CArchive archive(&file, CArchive::load);
    try {
        table.Serialize(archive);
        return true;
    } catch (CArchiveException *e) {
        e->Delete();
        return false;
    }
}

std::string Store(CLookupTableFile &table) {
    MemoryFile file;
    CArchive archive(&file, CArchive::store);
    table.Serialize(archive);
    archive.Close();
    return file.m_bytes;
}

// What pick lists do with a menu.
void UseMenu(CLookupTableFile &table) {
    std::vector<CMenuTree *> nodes{&table.m_MenuTree};
    for (size_t at = 0; at < nodes.size(); ++at) {
        CMenuTree &node = *nodes[at];
        CString code;
        node.GetFullCode(code, node.GetChildCount() - 1);
        table.GetMenuForCode(code);
        node.FindChild(node.GetCode(), table.m_bCaseSensitive);
        node.ResetIterator();
        while (CMenuTree *child = node.GetNextChild()) {
            if (nodes.size() >= kMostNodes)
                break;
            nodes.push_back(child);
        }
        node.ResetIterator();
    }
}

// What typing does with a trie: down its last children, as far as they go.
void UseTrie(CLookupTableFile &table) {
    CString code;
    const CLookupNode *node = &table.m_LookupTree;
    for (int i = 0; i < kMostNodes && node->GetChildCount() > 0; ++i) {
        node = node->GetChild(node->GetChildCount() - 1);
        code += static_cast<char>(node->m_cChar);
        table.IsValidPartialCode(code);
        table.IsValidCode(code);
        CStringArray codes;
        table.m_LookupTree.GetCodeList(code, table.m_bCaseSensitive, codes);
        table.m_MenuTree.FindPath(codes, table.m_bCaseSensitive);
    }
    CStringArray codes;
    codes.Add("A");
    codes.Add("!");
    codes.Add("xyz");
    table.m_LookupTree.AddCode(table.m_bCaseSensitive, codes, 0, 0);
}

} // namespace

bool ExerciseLookup(const std::uint8_t *bytes, std::size_t size) {
    CLookupTableFile table;
    if (!Load(table, std::string(reinterpret_cast<const char *>(bytes), size))) {
        table.m_MenuTree.Clear(true);
        table.m_LookupTree.Clear();
        return false;
    }
    const std::string written = Store(table);
    CLookupTableFile again;
    if (!Load(again, written) || Store(again) != written)
        std::abort();
    UseMenu(table);
    UseTrie(table);
    return true;
}
