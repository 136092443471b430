// Changed and new records, in memory, above those of the file. A record gets its own bytes with the first
// change to it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

namespace dbf {

class RecordOverlay {
public:
    explicit RecordOverlay(std::size_t recordLength = 1);

    // The record's own bytes, null when it has none.
    const std::uint8_t *find(std::uint64_t record) const;
    // The record's own bytes, copied from `original` when it has none yet. They stay at their address until
    // the overlay is destroyed.
    std::uint8_t *own(std::uint64_t record, const std::uint8_t *original);
    std::size_t size() const { return records_.size(); }

private:
    std::uint8_t *newRecord();

    std::size_t recordLength_;
    std::unordered_map<std::uint64_t, std::uint8_t *> records_;
    std::vector<std::unique_ptr<std::uint8_t[]>> chunks_;
    std::size_t chunkCapacity_ = 0; // in records
    std::size_t chunkUsed_ = 0;
};

} // namespace dbf
