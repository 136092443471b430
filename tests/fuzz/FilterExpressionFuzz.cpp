#include "FilterExpressionFuzz.h"

#include "../host/sources/DbfBytes.h"
#include "filter/DbfRecords.h"
#include "filter/Expression.h"

#include <chrono>
#include <cstdlib>

using namespace dbftest;

namespace {

constexpr std::chrono::milliseconds kPatience(100);

void require(bool truth) {
    if (!truth) {
        std::abort();
    }
}

// NAME C(8), PAY N(7,2), BORN D, ACTIVE L, NOTE M; all of a record, little of one, nothing.
struct Sample {
    Sample() {
        files.files["t.dbt"] = std::string(512, '\0') + std::string(65'536, 'a') + "\x1A";
        table = openBytes(files, header(0x83, 3, 35,
                                        descriptor("NAME", 'C', 8) + descriptor("PAY", 'N', 7, 2) +
                                            descriptor("BORN", 'D', 8) + descriptor("ACTIVE", 'L', 1) +
                                            descriptor("NOTE", 'M', 10)) +
                                     " Anna    1200.5019720229T         1" + "*\x81" "ber     ****19991231F         2" +
                                     " " + std::string(34, ' '));
    }

    MemoryFiles files;
    std::unique_ptr<dbf::Table> table;
};

void requireTold(const filter::Mistake &mistake, std::size_t size) {
    require(!mistake.text.empty() && !mistake.isLowMemory);
    require(mistake.position == filter::Mistake::kNowhere || mistake.position <= size);
}

} // namespace

bool exerciseFilterExpression(const std::uint8_t *bytes, std::size_t size) {
    static const Sample sample;
    static const filter::DbfRecords records(*sample.table);
    filter::Mistake mistake;
    const auto expression =
        filter::Expression::compile({reinterpret_cast<const char *>(bytes), size}, records, mistake);
    if (!expression) {
        requireTold(mistake, size);
        return false;
    }
    const auto begun = std::chrono::steady_clock::now();
    const filter::GoOn inTime = [&](filter::Row) { return std::chrono::steady_clock::now() - begun < kPatience; };
    filter::Row rows = 0;
    const auto outcome = expression->walk(
        0, records.count(), [&](filter::Row row) { require(row < records.count() && ++rows <= records.count()); },
        inTime, mistake);
    if (outcome == filter::Expression::Outcome::failed) {
        requireTold(mistake, size);
    } else {
        require(mistake.text.empty());
    }
    return true;
}
