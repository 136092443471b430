#include "filter/FilterList.h"

#include "filter/FilterListFile.h"

#include <algorithm>
#include <memory>

namespace filter {
namespace {

dbf::Result writeFile(dbf::Bytes bytes, const std::string &path, dbf::FileStore &files) {
    std::unique_ptr<dbf::FileWriter> writer;
    if (dbf::Result made = files.createBeside(path, writer); !made) {
        return made;
    }
    const std::string temporary = writer->path();
    dbf::Result done = writer->write(bytes);
    if (done) {
        done = writer->flush();
    }
    writer.reset();
    if (done) {
        done = files.replace(temporary, path);
    }
    if (!done) {
        files.remove(temporary);
    }
    return done;
}

} // namespace

std::string FilterList::pathBeside(const std::string &table) {
    const std::size_t folder = table.find_last_of("\\/");
    const std::size_t dot = table.rfind('.');
    const bool hasExtension = dot != std::string::npos && (folder == std::string::npos || dot > folder);
    return table.substr(0, hasExtension ? dot : table.size()) + ".@filters";
}

dbf::Result FilterList::load(const std::string &path, const dbf::CodePage *page, dbf::FileStore &files) {
    m_filters.clear();
    dbf::FileStamp stamp;
    if (!files.stat(path, stamp)) {
        return dbf::Result::success();
    }
    const auto refused = [&](const std::string &why) {
        return dbf::Result::failure("The filters in \"" + path + "\" cannot be read: " + why + ".");
    };
    if (const std::string size = refusedSize(stamp.size); !size.empty()) {
        return refused(size);
    }
    std::unique_ptr<dbf::MappedFile> file;
    if (dbf::Result mapped = files.map(path, file, stamp); !mapped) {
        return mapped;
    }
    const dbf::Result read = readFilters(file->bytes(), page, m_filters);
    return read ? read : refused(read.message);
}

dbf::Result FilterList::save(const std::string &path, const dbf::CodePage *page, dbf::FileStore &files) const {
    std::vector<std::uint8_t> bytes;
    if (const dbf::Result made = writeFilters(m_filters, page, bytes); !made) {
        return dbf::Result::failure("The filters cannot be stored in \"" + path + "\": " + made.message + ".");
    }
    return writeFile(bytes, path, files);
}

const Definition *FilterList::find(int number) const {
    const auto found = std::find_if(m_filters.begin(), m_filters.end(),
                                    [=](const Definition &filter) { return filter.number == number; });
    return found == m_filters.end() ? nullptr : &*found;
}

void FilterList::put(Definition filter) {
    const auto place = std::lower_bound(m_filters.begin(), m_filters.end(), filter.number,
                                        [](const Definition &each, int number) { return each.number < number; });
    if (place != m_filters.end() && place->number == filter.number) {
        *place = std::move(filter);
    } else {
        m_filters.insert(place, std::move(filter));
    }
}

void FilterList::remove(int number) {
    std::erase_if(m_filters, [=](const Definition &filter) { return filter.number == number; });
}

int FilterList::unusedNumber() const {
    int number = 1;
    for (const Definition &filter : m_filters) {
        number += filter.number == number ? 1 : 0;
    }
    return number;
}

} // namespace filter
