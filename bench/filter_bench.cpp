// filter_bench TABLE: what filters cost on a large table, medians of five. Workload: attach a filter over a number, over
// a text, and over both, to every record; then ask the source for each record in order and at random; change 100,000
// cells and ask again; delete the records that pass, and undo that. The shares are measured by filters that read no
// field, or one.
#include "DbfDataSource.h"
#include "filter/FilterList.h"
#include "grid/UGDefine.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <random>
#include <vector>

namespace {

constexpr std::array<const char *, 5> kExpressions = {
    "1",                                  // the walk alone
    "FIELD2 >= 500000",                      // and reading a number
    "FIELD1 like 'Item 1%'",                   // and reading a text
    "FIELD2 >= 500000 and FIELD1 like '%12%'",
    "FIELD2 % 2 = 0",
};

double median(const std::function<double()> &measure) {
    std::array<double, 5> times{};
    std::generate(times.begin(), times.end(), measure);
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

double milliseconds(const std::function<void()> &work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

long countPassing(CDbfDataSource &source, const std::vector<long> &records) {
    long passing = 0;
    for (long record : records) {
        int passes = 0;
        source.GetOption(UGSRC_PASSES_FILTER, &record, &passes);
        passing += passes;
    }
    return passing;
}

void attachAll(CDbfDataSource &source) {
    for (int number = 0; number < static_cast<int>(kExpressions.size()); ++number) {
        const double time = median([&] {
            return milliseconds([&] { source.SetOption(UGSRC_ATTACH_FILTER, number, 0); });
        });
        std::printf("attach  %-38s %8.1f ms %6.0f ns a record\n", kExpressions[static_cast<std::size_t>(number)], time,
                    time * 1e6 / static_cast<double>(source.GetNumRows()));
    }
}

void askAll(CDbfDataSource &source) {
    std::vector<long> records(static_cast<std::size_t>(source.GetNumRows()));
    for (std::size_t i = 0; i < records.size(); ++i) {
        records[i] = static_cast<long>(i) + 1;
    }
    const auto report = [&](const char *what) {
        long passing = 0;
        const double time = median([&] { return milliseconds([&] { passing = countPassing(source, records); }); });
        std::printf("ask     %-38s %8.1f ns a record, %ld pass\n", what,
                    time * 1e6 / static_cast<double>(records.size()), passing);
    };
    report("in order");
    std::shuffle(records.begin(), records.end(), std::mt19937(1));
    report("at random");
}

void changeAndAsk(CDbfDataSource &source) {
    constexpr long kChanges = 100'000;
    CUGCell value;
    value.SetText("123");
    std::vector<long> changed;
    source.StartTransaction();
    for (long i = 0; i < kChanges; ++i) {
        const long row = i * (source.GetNumRows() / kChanges);
        source.SetCell(1, row, &value);
        changed.push_back(row + 1);
    }
    source.EndTransaction();
    const double time = milliseconds([&] { countPassing(source, changed); });
    std::printf("ask     %-38s %8.1f ns a record\n", "first time after a change", time * 1e6 / kChanges);
    source.Undo();
    const long rows = source.GetNumRows();
    const double removal = milliseconds([&] { source.DeleteRows(-1, -1); });
    std::printf("delete  %ld that pass, one in two %26.1f ms\n", rows - source.GetNumRows(), removal);
    std::printf("undo    %46.1f ms\n", milliseconds([&] { source.Undo(); }));
}

} // namespace

int main(int count, char **arguments) {
    if (count != 2) {
        std::fprintf(stderr, "filter_bench TABLE\n");
        return 2;
    }
    filter::FilterList list;
    for (std::size_t i = 0; i < kExpressions.size(); ++i) {
        list.put({static_cast<int>(i), "", kExpressions[i]});
    }
    list.save(filter::FilterList::pathBeside(arguments[1]), nullptr);
    CDbfDataSource source({[](const std::string &message) { std::fprintf(stderr, "%s\n", message.c_str()); }, {}, {}, {}, {}});
    if (source.Open(arguments[1], "") != GRID_SUCCESS) {
        return 1;
    }
    std::printf("filters over %ld records\n", source.GetNumRows());
    attachAll(source);
    askAll(source);
    changeAndAsk(source);
    source.Close(true);
    return 0;
}
