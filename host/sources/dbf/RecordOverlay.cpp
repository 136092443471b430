#include "RecordOverlay.h"

#include <algorithm>
#include <cstring>

namespace dbf {
namespace {

constexpr std::size_t kFirstChunkBytes = 4 * 1024;
constexpr std::size_t kLargestChunkBytes = 1024 * 1024;

} // namespace

RecordOverlay::RecordOverlay(std::size_t recordLength) : recordLength_(recordLength) {}

const std::uint8_t *RecordOverlay::find(std::uint64_t record) const {
    if (records_.empty()) {
        return nullptr;
    }
    const auto found = records_.find(record);
    return found == records_.end() ? nullptr : found->second;
}

std::uint8_t *RecordOverlay::own(std::uint64_t record, const std::uint8_t *original) {
    if (const auto found = records_.find(record); found != records_.end()) {
        return found->second;
    }
    std::uint8_t *bytes = newRecord();
    std::memcpy(bytes, original, recordLength_);
    records_.emplace(record, bytes);
    ++chunkUsed_; // only now: had the map failed to grow, the next record would take the same place
    return bytes;
}

// The place of the next record, which the caller takes by counting chunkUsed_ up.
std::uint8_t *RecordOverlay::newRecord() {
    if (chunkUsed_ == chunkCapacity_) {
        const std::size_t wanted = chunks_.empty()
                                       ? kFirstChunkBytes
                                       : std::min(chunkCapacity_ * recordLength_ * 2, kLargestChunkBytes);
        const std::size_t capacity = std::max<std::size_t>(1, wanted / recordLength_);
        chunks_.push_back(std::make_unique<std::uint8_t[]>(capacity * recordLength_));
        chunkCapacity_ = capacity;
        chunkUsed_ = 0;
    }
    return chunks_.back().get() + chunkUsed_ * recordLength_;
}

} // namespace dbf
