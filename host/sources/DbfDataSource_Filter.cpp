// The filter of a table behind the grid: attaching it, asking it, and what is done to the records that pass.
#include "DbfDataSource.h"

#include "filter/FilterList.h"
#include "filter/Utf8.h"
#include "grid/UGDefine.h"

#include <utility>

namespace {

std::string filterNamed(int number, const std::string &name) {
    const std::string what = number == 0 ? "The default filter" : "Filter " + std::to_string(number);
    return name.empty() ? what : what + " \"" + name + "\"";
}

// Changes that are undone as one.
struct Group {
    explicit Group(dbf::Table &changed) : table(changed) { table.beginTransaction(); }
    ~Group() { table.endTransaction(); }

    dbf::Table &table;
};

} // namespace

// Null with the reason told, or when the user stopped it.
std::unique_ptr<filter::RecordFilter> CDbfDataSource::MakeFilter(dbf::Table &table, int number) const {
    const std::string path = filter::FilterList::pathBeside(table.path());
    filter::FilterList list;
    if (const dbf::Result loaded = list.load(path, dbf::findCodePage(table.displayCodePage())); !loaded) {
        Tell(loaded.message);
        return nullptr;
    }
    const filter::Definition *definition = list.find(number);
    if (!definition) {
        Tell(filterNamed(number, {}) + " of \"" + table.path() + "\" has not been made yet.");
        return nullptr;
    }
    const std::uint64_t all = table.rowCount();
    const auto goOn = [&](filter::Row done) { return !m_hooks.progress || m_hooks.progress(done, all); };
    std::string message;
    auto made = filter::RecordFilter::attach(table, definition->expression, goOn, message);
    if (!made && !message.empty()) {
        Tell(filterNamed(number, definition->name) + " cannot be used:\n\n" + definition->expression + "\n\n" + message);
    }
    return made;
}

int CDbfDataSource::AttachFilter(int number) {
    return Guarded([&]() -> int {
        std::unique_ptr<filter::RecordFilter> made = MakeFilter(*m_table, number);
        if (!made) {
            return GRID_ERROR;
        }
        m_filter = std::move(made);
        m_filterNumber = number;
        return GRID_SUCCESS;
    });
}

// This is asked for every cell that is painted.
int CDbfDataSource::AskFilter(long record, int *passes) {
    const auto row = static_cast<dbf::Table::Row>(record) - 1;
    if (!m_filter || record < 1 || row >= m_table->rowCount()) {
        return GRID_ERROR;
    }
    return Guarded([&]() -> int {
        bool known = false;
        *passes = m_filter->passes(row, known) ? 1 : 0;
        return known ? GRID_SUCCESS : GRID_ERROR;
    });
}

// From the end, run by run, so that what is still to go keeps its place; all of it in one group.
dbf::Result CDbfDataSource::RemovePassing(dbf::Table &table) {
    if (!m_filter) {
        return dbf::Result::failure("There is no filter whose records could be deleted");
    }
    const auto passes = [this](dbf::Table::Row row) {
        bool known = false;
        return m_filter->passes(row, known);
    };
    dbf::Result result = dbf::Result::success();
    const Group group(table);
    for (dbf::Table::Row end = table.rowCount(); end > 0 && result;) {
        dbf::Table::Row first = end;
        while (first > 0 && passes(first - 1)) {
            --first;
        }
        result = table.removeRows(first, end - first);
        end = first > 0 ? first - 1 : 0;
    }
    return result;
}

// A list that cannot be read or written is left where it is: the table itself is saved.
void CDbfDataSource::TakeFiltersAlong(const std::string &from, const std::string &to) const {
    const std::string target = filter::FilterList::pathBeside(to);
    dbf::FileStamp stamp;
    if (dbf::systemFiles().stat(target, stamp)) {
        return;
    }
    const dbf::CodePage *page = dbf::findCodePage(m_table->displayCodePage());
    filter::FilterList list;
    if (list.load(filter::FilterList::pathBeside(from), page) && !list.all().empty()) {
        list.save(target, page);
    }
}
