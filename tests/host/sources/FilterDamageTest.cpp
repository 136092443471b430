// Damaged lists of filters and expressions of any kind, by the thousand: the short run of what the fuzz targets do.
#include "../../fuzz/FilterExpressionFuzz.h"
#include "../../fuzz/FilterListFuzz.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

using Exercise = bool (*)(const std::uint8_t *, std::size_t);

std::vector<std::string> seeds(const std::string &corpus) {
    std::vector<std::filesystem::path> paths;
    for (const auto &entry : std::filesystem::directory_iterator(std::string(ORVANE_FUZZ) + "/" + corpus)) {
        paths.push_back(entry.path());
    }
    std::sort(paths.begin(), paths.end());
    std::vector<std::string> all;
    for (const auto &path : paths) {
        std::ifstream in(path, std::ios::binary);
        all.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    return all;
}

bool pass(Exercise exercise, const std::string &bytes) {
    return exercise(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
}

std::string mutated(std::string bytes, const std::string &other, std::mt19937 &random) {
    const auto below = [&](std::size_t n) { return n == 0 ? 0 : random() % n; };
    for (std::size_t n = 1 + below(4); n > 0; --n) {
        const std::size_t at = below(bytes.size());
        switch (below(6)) {
        case 0: bytes.insert(at, 1, static_cast<char>(below(256))); break;
        case 1: bytes.erase(at, 1 + below(8)); break;
        case 2: bytes.insert(at, other.substr(below(other.size()), below(40))); break;
        case 3: bytes.resize(at); break;
        case 4: bytes.replace(at, 1, 1, static_cast<char>(below(2) != 0 ? 255 : 0)); break;
        default: bytes.replace(at, 1, 1, static_cast<char>(below(256))); break;
        }
    }
    return bytes;
}

// How many of the seeds are what they are meant to be; all of them and `runs` of their like do no harm.
std::size_t run(Exercise exercise, const std::string &corpus, int runs) {
    const std::vector<std::string> all = seeds(corpus);
    std::mt19937 random(20261122);
    for (int i = 0; i < runs; ++i) {
        pass(exercise, mutated(all[random() % all.size()], all[random() % all.size()], random));
    }
    return static_cast<std::size_t>(
        std::count_if(all.begin(), all.end(), [&](const std::string &seed) { return pass(exercise, seed); }));
}

} // namespace

TEST(FilterDamage, ListsOfAnyBytesDoNoHarm) {
    EXPECT_EQ(run(exerciseFilterList, "filter_list_corpus", 10'000), 6u);
}

TEST(FilterDamage, ExpressionsOfAnyTextDoNoHarm) {
    EXPECT_EQ(run(exerciseFilterExpression, "filter_expression_corpus", 10'000), 15u);
}
