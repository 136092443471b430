// Every allocation of loading and of compiling failed once: what has to be said is said, the table can be used
// afterwards, and nothing leaks.
#include "AllocationFault.h"
#include "CompilerTest.h"
#include "LookupExamples.h"

namespace {

// An archive's failure that cannot even be thrown is a lack of memory as well.
constexpr const char *kOutOfMemory = "Out of memory!";
constexpr const char *kOutOfMemoryBox = "Out of memory!|16";
constexpr const char *kInsertBox = "CMenuTree::InsertChild: Out of memory!|16";
constexpr const char *kTrieBox = "Exception caught from 'BuildLookupTree ()'!|16";

class LookupMemoryTest : public CompilerTest {
protected:
    // Repeats `attempt`, which answers whether an allocation of its own was failed, with each allocation failed once.
    template <class Attempt> long Sweep(Attempt attempt) {
        long nth = 0;
        for (bool failed = true; failed && nth < 100000; ++nth) {
            const long before = AllocationFault::LiveBlocks();
            failed = attempt(nth);
            EXPECT_EQ(AllocationFault::LiveBlocks(), before) << "allocation " << nth;
            if (HasFailure())
                break;
        }
        return nth;
    }
    void SweepLoad(const std::string &bytes) {
        const std::string path = m_files.Make("t.lbn", bytes);
        const long allocations = Sweep([&](long nth) {
            CLookupTableFile table;
            CString text;
            m_host.m_waits.clear();
            AllocationFault fault(nth);
            const bool loaded = table.SerializeFile(path.c_str(), text, false);
            fault.Disarm();
            EXPECT_EQ(loaded, !fault.Failed()) << nth;
            EXPECT_STREQ(text, loaded ? "" : kOutOfMemory);
            EXPECT_EQ(m_host.m_waits, loaded ? "" : "-1");
            EXPECT_EQ(Outline(table.m_MenuTree), loaded ? "A(1 2)" : "");
            text.Empty();
            EXPECT_TRUE(table.SerializeFile(path.c_str(), text, false)) << text;
            EXPECT_TRUE(table.IsValidCode("A2"));
            return fault.Failed();
        });
        EXPECT_GT(allocations, 10);
    }
    // Compiles with an allocation failed, and says how it went: boxes, then the text or what was thrown.
    std::string CompileWithFault(long nth, bool &failed) {
        TestCompiler compiler(&m_host);
        compiler.AttachDataSource(m_source.get());
        std::filesystem::remove(m_files.Path("table.lbn"));
        m_host.m_waits.clear();
        CString text;
        std::string outcome = "no";
        AllocationFault fault(nth);
        try {
            int col;
            long row;
            if (compiler.Compile(col, row, text))
                outcome = "ok";
        } catch (CMemoryException *e) {
            e->Delete();
            outcome = "thrown";
        }
        fault.Disarm();
        failed = fault.Failed();
        const std::string boxes = m_app.Take();
        return boxes + (boxes.empty() ? "" : " ") + outcome + (text.IsEmpty() ? "" : " " + std::string(text)) + " (" +
               m_host.m_waits + ")";
    }
    void SweepCompile(const std::set<std::string> &allowed) {
        m_outcomes.reserve(4096); // so that the sweep does not count it
        const long allocations = Sweep([&](long nth) {
            bool failed;
            const std::string outcome = CompileWithFault(nth, failed);
            EXPECT_EQ(allowed.count(outcome), 1u) << nth << ": " << outcome;
            EXPECT_EQ(outcome == "ok (1 -1)", !failed) << nth;
            if (outcome.find("ok") != std::string::npos && failed) {
                // The file was stored with what there is of the trie.
                CLookupTableFile table;
                CString text;
                EXPECT_TRUE(table.SerializeFile(m_files.Path("table.lbn").c_str(), text, false)) << text;
            }
            m_outcomes += m_outcomes.find(outcome) == std::string::npos ? outcome + "\n" : "";
            return failed;
        });
        EXPECT_GT(allocations, 20);
        for (const std::string &outcome : allowed)
            EXPECT_NE(m_outcomes.find(outcome), std::string::npos) << "never came: " << outcome;
    }

    std::string m_outcomes;
};

TEST_F(LookupMemoryTest, LoadingThePlainForm) {
    SweepLoad(PlainExample());
}

TEST_F(LookupMemoryTest, LoadingTheSharedForm) {
    SweepLoad(SharedExample());
}

TEST_F(LookupMemoryTest, LoadingDamageSaysOneOfBoth) {
    const std::string path = m_files.Make("t.lbn", PlainExample().substr(0, 150));
    Sweep([&](long nth) {
        CLookupTableFile table;
        CString text;
        AllocationFault fault(nth);
        EXPECT_FALSE(table.SerializeFile(path.c_str(), text, false));
        fault.Disarm();
        EXPECT_STREQ(text, fault.Failed() ? kOutOfMemory : "Error reading lookup table!");
        m_host.m_waits.clear();
        return fault.Failed();
    });
}

TEST_F(LookupMemoryTest, CompilingAnOutline) {
    Open(4, {{"A", "Alpha"}, {"", "", "1", "one"}, {"", "", "2", "two"}, {"B", "Beta"}, {"", "", "!", "none"}});
    SweepCompile({"ok (1 -1)", std::string(kOutOfMemoryBox) + " no ()", std::string(kOutOfMemoryBox) + " no (1 -1)",
                  std::string(kInsertBox) + " no (1 -1)", std::string(kTrieBox) + " ok (1 -1)",
                  "no Out of memory! (1 -1 -1)"});
}

TEST_F(LookupMemoryTest, CompilingIndependentLevels) {
    Open(4, {{"A", "Alpha", "1", "one"}, {"B", "Beta", "2", "two"}, {"", "", "!", ""}});
    SweepCompile({"ok (1 -1)", std::string(kOutOfMemoryBox) + " no ()", std::string(kOutOfMemoryBox) + " thrown (1 -1)",
                  std::string(kTrieBox) + " ok (1 -1)", "no Out of memory! (1 -1 -1)"});
}

// Beyond the first block of a pool, and where lists grow.
TEST_F(LookupMemoryTest, CompilingAndLoadingManyCodes) {
    Open(2, {});
    for (int i = 0; i < 300; ++i)
        m_source->m_rows.push_back({std::to_string(1000 + i * 7 % 300), std::string(static_cast<size_t>(i) * 5, 'd')});
    Sweep([&](long nth) {
        bool failed;
        // Cells and paths allocate alike: one in seven tries the rest as well.
        CompileWithFault(nth * 7, failed);
        return failed;
    });
    bool failed;
    EXPECT_EQ(CompileWithFault(1000000, failed), "ok (1 -1)");
    const std::string path = m_files.Path("table.lbn");
    const long allocations = Sweep([&](long nth) {
        CLookupTableFile table;
        CString text;
        AllocationFault fault(nth);
        const bool loaded = table.SerializeFile(path.c_str(), text, false);
        fault.Disarm();
        EXPECT_EQ(loaded, !fault.Failed());
        EXPECT_EQ(table.m_MenuTree.GetChildCount(), loaded ? 300 : 0);
        m_host.m_waits.clear();
        return fault.Failed();
    });
    EXPECT_GT(allocations, 20);
}

TEST_F(LookupMemoryTest, InsertChildLeavesTheTreeAsItWas) {
    CMenuTree root;
    for (int i = 0; i < 40; ++i) {
        const std::string code = std::to_string(i * 37 % 40);
        for (long nth = 0;; ++nth) {
            AllocationFault fault(nth);
            CMenuTree *node = root.InsertChild(code.c_str(), "text", i, true);
            fault.Disarm();
            ASSERT_EQ(node == nullptr, fault.Failed());
            ASSERT_EQ(m_app.Take(), fault.Failed() ? kInsertBox : "");
            ASSERT_EQ(root.GetChildCount(), fault.Failed() ? i : i + 1);
            if (!fault.Failed())
                break;
        }
    }
}

TEST_F(LookupMemoryTest, AddCodeKeepsWhatWasAdded) {
    CLookupTree tree;
    std::vector<std::string> added;
    for (int i = 0; i < 200; ++i) {
        const std::string code = std::to_string(1000 + i * 37 % 200);
        CStringArray levels;
        Fill(levels, {"A", code.c_str()});
        for (long nth = 0, failed = 1; failed; ++nth) {
            AllocationFault fault(nth);
            try {
                tree.AddCode(true, levels, 0, 0);
            } catch (CMemoryException *e) {
                e->Delete();
            }
            fault.Disarm();
            failed = fault.Failed();
            for (const std::string &old : added)
                ASSERT_TRUE(tree.IsCompleteCode(("A" + old).c_str(), true)) << old;
        }
        added.push_back(code);
        CStringArray list;
        ASSERT_TRUE(tree.GetCodeList(("A" + code).c_str(), true, list));
        ASSERT_EQ(Joined(list), "A|" + code);
    }
}

TEST_F(LookupMemoryTest, GetCodeListTellsTheUser) {
    CLookupTree tree;
    CStringArray levels;
    Fill(levels, {"A", "B"});
    tree.AddCode(true, levels, 0, 0);
    const long tries = Sweep([&](long nth) {
        CStringArray codes;
        AllocationFault fault(nth);
        const bool had = tree.GetCodeList("AB", true, codes);
        fault.Disarm();
        EXPECT_EQ(had, !fault.Failed());
        EXPECT_EQ(codes.GetSize(), had ? 2 : 0);
        EXPECT_EQ(m_app.Take(), had ? "" : "CLookupTree::GetCodeList: Out of memory!|16");
        return fault.Failed();
    });
    EXPECT_GT(tries, 2);
}

TEST_F(LookupMemoryTest, ASearchThatCannotBeKeptLeavesTheLastOne) {
    CLookupTree tree;
    CStringArray levels;
    const std::string code(100, 'x');
    Fill(levels, {code.c_str()});
    tree.AddCode(true, levels, 0, 0);
    EXPECT_TRUE(tree.IsPartialCode("x", true));
    AllocationFault fault(0);
    EXPECT_THROW(tree.IsPartialCode(code.c_str(), true), CMemoryException *);
    fault.Disarm();
    EXPECT_STREQ(tree.m_sLastCode, "x");
    EXPECT_TRUE(tree.IsCompleteCode(code.c_str(), true));
}

} // namespace
