// The filters of a table: numbered, named expressions, kept in a file beside it. Number 0 is the default filter, the
// one edited last. The file is an SQLite database, written anew as a whole in one step.
#pragma once

#include "dbf/CodePage.h"
#include "dbf/FileStore.h"

#include <string>
#include <vector>

namespace filter {

struct Definition {
    int number = 0;
    std::string name;       // in the display code page, as
    std::string expression; // this
};

class FilterList {
public:
    // "C:\DATA\STAFF.DBF" has its filters in "C:\DATA\STAFF.@filters".
    static std::string pathBeside(const std::string &table);

    // A file that does not exist holds no filters. On failure the list is empty.
    dbf::Result load(const std::string &path, const dbf::CodePage *page, dbf::FileStore &files = dbf::systemFiles());
    dbf::Result save(const std::string &path, const dbf::CodePage *page,
                     dbf::FileStore &files = dbf::systemFiles()) const;

    // In the order of their numbers.
    const std::vector<Definition> &all() const { return m_filters; }
    // Null when there is none; valid until the list changes.
    const Definition *find(int number) const;
    // In place of one of the same number.
    void put(Definition filter);
    void remove(int number);
    // From 1.
    int unusedNumber() const;

private:
    std::vector<Definition> m_filters;
};

} // namespace filter
