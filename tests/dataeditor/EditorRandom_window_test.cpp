// Random work at an editor of a real table, held against a simple model after each event. Another run:
// ORVANE_EDITOR_SEED and ORVANE_EDITOR_COUNT.
#include "EditorRun.h"

#include "DbfTable.h"
#include "host/sources/filter/FilterList.h"

#include <cstdlib>
#include <deque>

namespace {

constexpr unsigned kSeed = 4711;
constexpr unsigned kCount = 100000;
constexpr size_t kTold = 12; // events of a failure

unsigned Setting(const char *name, unsigned otherwise) {
    const char *text = std::getenv(name);
    return text != nullptr ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : otherwise;
}

class EditorRandomTest : public DataEditorTest {
protected:
    RunTable OpenTable(const std::string &path, const AsksToClose &asks) {
        m_dataEditors.clear();
        RunTable table;
        auto owned = std::make_unique<RunEditor>(&m_log);
        table.editor = owned.get();
        m_dataEditors.push_back(std::move(owned));
        table.editor->CreateGrid(WS_VISIBLE, CRect(0, 0, 500, 300), &m_host, 400);
        CDbfDataSource::Hooks hooks;
        hooks.message = [](const std::string &text) { AfxMessageBox(text.c_str()); };
        hooks.rowsChanged = [editor = table.editor] { editor->OnDataSourceNotify(0, 1, 0); };
        hooks.mayClose = asks;
        table.source = new RefusingSource(hooks);
        m_service.m_sources.push_back(table.source);
        EXPECT_TRUE(table.editor->LoadData(path.c_str(), nullptr, kNoFilter, kEditNormal, nullptr));
        Forget();
        return table;
    }
    void Run(unsigned seed, unsigned count) {
        const std::string path =
            MakeFile("table.dbf", DbfTableBytes(EditorRun::kFields, EditorRun::kRecords, EditorRun::kWidth,
                                                std::string(EditorRun::kNumberField, 'C') + "N"));
        filter::FilterList filters;
        filters.put({EditorRun::kFilterNumber, "late", EditorRun::kFilter});
        for (const std::string &table : {path, PathOf("other.dbf"), PathOf("third.dbf")})
            ASSERT_TRUE(filters.save(filter::FilterList::pathBeside(table), dbf::findCodePage(1252)));
        EditorRun run(
            seed, path, [this](const std::string &file, const AsksToClose &asks) { return OpenTable(file, asks); },
            &m_service, &m_log, &m_host);
        std::deque<std::string> before; // the last events, oldest first
        for (unsigned number = 1; number <= count; ++number) {
            run.Next();
            const std::string broken = run.Broken();
            ASSERT_TRUE(broken.empty() && !HasFailure()) << broken << " seed " << seed << ", event " << number << ": " << run.Text() << "\nafter\n  "
                                  << Join({before.begin(), before.end()}, "\n  ");
            before.push_back(run.Text());
            if (before.size() > kTold)
                before.pop_front();
        }
        CEditorCore::SetEnterKey(false);
    }
};

TEST_F(EditorRandomTest, EveryCellIsTheModelsAfterEachOfManyRandomEvents) {
    Run(Setting("ORVANE_EDITOR_SEED", kSeed), Setting("ORVANE_EDITOR_COUNT", kCount));
}

} // namespace
