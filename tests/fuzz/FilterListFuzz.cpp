#include "FilterListFuzz.h"

#include "filter/FilterListFile.h"

#include <cstdlib>

namespace {

void require(bool truth) {
    if (!truth) {
        std::abort();
    }
}

bool same(const std::vector<filter::Definition> &one, const std::vector<filter::Definition> &other) {
    bool all = one.size() == other.size();
    for (std::size_t i = 0; i < one.size() && all; ++i) {
        all = one[i].number == other[i].number && one[i].name == other[i].name &&
              one[i].expression == other[i].expression;
    }
    return all;
}

void requireSound(const std::vector<filter::Definition> &filters) {
    require(filters.size() <= filter::kMostFilters);
    int last = -1;
    for (const filter::Definition &each : filters) {
        require(each.number > last);
        require(each.name.size() <= filter::kLongestListText && each.name.find('\0') == std::string::npos);
        require(each.expression.size() <= filter::kLongestListText &&
                each.expression.find('\0') == std::string::npos);
        last = each.number;
    }
}

} // namespace

bool exerciseFilterList(const std::uint8_t *bytes, std::size_t size) {
    const dbf::CodePage *page = dbf::findCodePage(1252);
    const std::vector<filter::Definition> before = {{7, "before", "1"}};
    std::vector<filter::Definition> filters = before;
    if (const dbf::Result read = filter::readFilters({bytes, size}, page, filters); !read) {
        require(!read.message.empty());
        require(same(filters, before));
        return false;
    }
    requireSound(filters);
    std::vector<std::uint8_t> written;
    require(filter::writeFilters(filters, page, written).ok);
    std::vector<filter::Definition> again;
    require(filter::readFilters(written, page, again).ok);
    require(same(filters, again));
    return true;
}
