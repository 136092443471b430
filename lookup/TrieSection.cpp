#include "lookup/TrieSection.h"

#include "lookup/FileClaims.h"

#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr BYTE kSinglePath = 0x01;
constexpr BYTE kEndOfCode = 0x02;
constexpr unsigned kLeastNodeBytes = 9; // flags, character, an empty array, a count

void WriteNode(CArchive &ar, const CLookupNode &node) {
    ar << static_cast<BYTE>((node.m_bSinglePath ? kSinglePath : 0) | (node.m_bEndOfCode ? kEndOfCode : 0));
    ar << static_cast<WORD>(static_cast<short>(node.m_cChar));
    const CPoolCodes codes = node.GetCodeList();
    ar.WriteCount(static_cast<unsigned>(codes.GetCount()));
    for (CPoolCodes::Reader reader(codes); !reader.IsAtEnd();) {
        int length;
        const char *code = reader.Take(&length);
        ar.WriteText(code, static_cast<unsigned>(length));
    }
    ar << static_cast<int>(node.GetChildCount());
}

// Reads the trie; holds what a node needs only while it is read.
class CTrieReader {
public:
    CTrieReader(CArchive &ar, CLookupTree &tree) : m_ar(ar), m_tree(tree), m_claims(ar, kLeastNodeBytes) {}

    void Read() {
        m_tree.m_cChar = ReadFront();
        ReadRest(m_tree);
        while (!m_steps.empty()) {
            Step &step = m_steps.back();
            if (step.next == step.node->GetChildCount()) {
                m_steps.pop_back();
                continue;
            }
            const unsigned index = step.next++;
            m_claims.Take();
            const signed char character = ReadFront();
            step.node->SetChildCharacter(index, static_cast<char>(character));
            ReadRest(*step.node->GetChild(index));
        }
    }

private:
    struct Step {
        CLookupNode *node;
        unsigned next;
    };

    // The flags are kept; the result is the character.
    signed char ReadFront() {
        WORD character;
        m_ar >> m_flags >> character;
        return static_cast<signed char>(character & 0xFF);
    }
    void ReadRest(CLookupNode &node) {
        node.m_bSinglePath = (m_flags & kSinglePath) != 0;
        node.m_bEndOfCode = (m_flags & kEndOfCode) != 0;
        ReadCodes(node);
        const int children = m_claims.ReadCount();
        if (children > static_cast<int>(CLookupNode::kMostChildren))
            AfxThrowArchiveException(CArchiveException::badIndex, m_ar.GetFile()->GetFilePath());
        if (children > 0) {
            node.MakeChildren(m_tree.GetPool(), static_cast<unsigned>(children));
            m_steps.push_back({&node, 0});
        }
    }
    void ReadCodes(CLookupNode &node) {
        const unsigned count = m_ar.ReadCount();
        if (count == 0)
            return;
        // Each takes a byte of the file at least.
        if (count > m_ar.BytesLeft())
            AfxThrowArchiveException(CArchiveException::endOfFile, m_ar.GetFile()->GetFilePath());
        m_packed.clear();
        Pack(count);
        for (unsigned i = 0; i < count; ++i) {
            unsigned length;
            LPCSTR text = m_ar.ReadText(&length);
            Pack(length);
            m_packed.append(text, length).push_back('\0');
        }
        char *memory = m_tree.GetTextPool().AllocateText(m_packed.size());
        std::memcpy(memory, m_packed.data(), m_packed.size());
        node.SetCodeList(m_tree.GetPool(), CPoolCodes(memory));
    }
    void Pack(unsigned number) {
        char bytes[5];
        m_packed.append(bytes, CPoolCodes::PackNumber(number, bytes));
    }

    CArchive &m_ar;
    CLookupTree &m_tree;
    CFileClaims m_claims;
    std::vector<Step> m_steps;
    std::string m_packed;
    BYTE m_flags = 0;
};

} // namespace

void WriteTrieSection(CArchive &ar, const CLookupTree &tree) {
    struct Step {
        const CLookupNode *node;
        unsigned next;
    };
    std::vector<Step> steps;
    const auto enter = [&](const CLookupNode *node) {
        WriteNode(ar, *node);
        steps.push_back({node, 0});
    };
    enter(&tree);
    while (!steps.empty()) {
        Step &step = steps.back();
        if (step.next < step.node->GetChildCount())
            enter(step.node->GetChild(step.next++));
        else
            steps.pop_back();
    }
}

void ReadTrieSection(CArchive &ar, CLookupTree &tree) {
    CTrieReader(ar, tree).Read();
}
