// lookup_bench FOLDER: what lookup tables cost, beside other ways to keep a million codes.
//
// Workload: 1,000,000 codes of eight characters with descriptions of twenty, one level, validation on, as two sets.
// "dense" is a classification: consecutive numbers, 1.1 nodes of the trie a code. "random" draws from digits and
// capital letters: 4.8 nodes a code, most of them tails without a branch, the worst that codes can be. Each set is
// compiled in code order, 100,000 of it in random order, the file loaded, every code looked for in random order, as
// many that are not there, and 200,000 typed character by character. Medians with minimum and maximum.
#include "bench/StaticTrie.h"

#include "grid/UGDataSource.h"
#include "lookup/LookupTableFileCompiler.h"
#include "tests/lookup/LookupHost.h"

#include <afxwin.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <unordered_set>
#include <vector>

namespace {

constexpr int kRuns = 5;
constexpr size_t kCodes = 1000000;
constexpr size_t kShuffled = 100000; // rows in random order
constexpr size_t kTyped = 200000;    // codes
constexpr size_t kCodeLength = 8;

using Codes = std::vector<std::string>;

// What the compiler asks is answered with yes.
class CBenchApp : public CWinApp {
public:
    int DoMessageBox(LPCTSTR, UINT, UINT) override { return IDYES; }
};

class CCodeSource : public CUGDataSource {
public:
    CCodeSource(const std::string &path, const Codes &codes, size_t rows) : m_path(path), m_codes(codes), m_rows(rows) {}
    long GetNumRows() override { return static_cast<long>(m_rows); }
    int GetNumCols() override { return 2; }
    int GetCell(int col, long row, CUGCell *cell) override {
        const std::string &code = m_codes[static_cast<size_t>(row)];
        return cell->SetText(col == 0 ? code.c_str() : ("Item number " + code).c_str());
    }
    int GetOption(int, void *value1, void *) override {
        **static_cast<CString **>(value1) = m_path.c_str();
        return GRID_SUCCESS;
    }

private:
    std::string m_path;
    const Codes &m_codes;
    size_t m_rows;
};

Codes DenseCodes() {
    Codes codes;
    for (size_t i = 0; i < kCodes; ++i)
        codes.push_back(std::to_string(10000000 + i));
    return codes;
}

Codes RandomCodes(unsigned seed) {
    constexpr char kCharacters[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    std::mt19937 random(seed);
    Codes codes;
    while (codes.size() < kCodes) {
        while (codes.size() < kCodes) {
            std::string code(kCodeLength, ' ');
            for (char &c : code)
                c = kCharacters[random() % 36];
            codes.push_back(code);
        }
        std::sort(codes.begin(), codes.end());
        codes.erase(std::unique(codes.begin(), codes.end()), codes.end());
    }
    return codes;
}

Codes Shuffled(Codes codes) {
    std::mt19937 random(7);
    std::shuffle(codes.begin(), codes.end(), random);
    return codes;
}

template <class Work> double Milliseconds(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void Print(const char *what, const char *unit, std::vector<double> values, const char *target = "") {
    std::sort(values.begin(), values.end());
    std::printf("  %-46s %10.1f %-12s (%.1f to %.1f) %s\n", what, values[values.size() / 2], unit, values.front(),
                values.back(), target);
    std::fflush(stdout);
}

// Times `work` several times, in nanoseconds for each of `count`.
template <class Work> void PrintEach(const char *what, const char *unit, size_t count, const char *target, Work work) {
    std::vector<double> values;
    for (int run = 0; run < kRuns; ++run)
        values.push_back(Milliseconds(work) * 1e6 / static_cast<double>(count));
    Print(what, unit, values, target);
}

void Expect(bool holds, const char *what) {
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

size_t g_counted = 0; // bytes that CountingAllocator gave

template <class T> struct CountingAllocator {
    using value_type = T;
    CountingAllocator() = default;
    template <class U> CountingAllocator(const CountingAllocator<U> &) {}
    T *allocate(size_t n) {
        g_counted += n * sizeof(T);
        return std::allocator<T>().allocate(n);
    }
    void deallocate(T *memory, size_t n) { std::allocator<T>().deallocate(memory, n); }
    bool operator==(const CountingAllocator &) const { return true; }
};

// One set of codes through everything.
class CLookupBench {
public:
    CLookupBench(LookupHost &host, const std::string &folder, const Codes &codes)
        : m_host(host), m_folder(folder), m_codes(codes), m_asked(Shuffled(codes)), m_absent(m_asked) {
        // The last character but one becomes one that no code has.
        for (std::string &code : m_absent)
            code[kCodeLength - 2] = '~';
    }

    void Run() {
        Compile("compile in code order", m_codes, kCodes, 1, "target 10000");
        Load();
        Search();
        Type();
        Compile("compile 100,000 in random order", m_asked, kShuffled, 3, "target 3000");
        Others();
    }

private:
    void Compile(const char *what, const Codes &codes, size_t rows, int runs, const char *target) {
        std::vector<double> times;
        double bytes = 0;
        for (int run = 0; run < runs; ++run) {
            CCodeSource source(m_folder + "/lookup_bench.dat", codes, rows);
            CLookupTableFileCompiler compiler(&m_host);
            compiler.AttachDataSource(&source);
            int col;
            long row;
            CString text;
            times.push_back(
                Milliseconds([&] { Expect(compiler.Compile(col, row, text), "the table does not compile"); }));
            bytes = static_cast<double>(compiler.m_MenuTree.GetHeldBytes() + compiler.m_LookupTree.GetHeldBytes());
        }
        Print(what, "ms", times, target);
        Print("  memory behind it", "bytes a code", {bytes / static_cast<double>(rows)});
    }
    void Load() {
        const std::string path = m_folder + "/lookup_bench.lbn";
        CFileStatus status;
        Expect(CFile::GetStatus(path.c_str(), status), "there is no table");
        const double megabytes = static_cast<double>(status.m_size) / 1e6;
        std::vector<double> speeds;
        for (int run = 0; run < kRuns; ++run) {
            CString text;
            const double time = Milliseconds(
                [&] { Expect(m_table.SerializeFile(path.c_str(), text, false), "the table does not load"); });
            speeds.push_back(megabytes / time * 1000);
        }
        std::printf("  the file has %.1f MB\n", megabytes);
        Print("load", "MB/s", speeds, "target 100");
        const auto perCode = [](size_t bytes) { return static_cast<double>(bytes) / kCodes; };
        Print("memory, loaded", "bytes a code",
              {perCode(m_table.m_MenuTree.GetHeldBytes() + m_table.m_LookupTree.GetHeldBytes())}, "target 250");
        Print("  of which the trie", "bytes a code", {perCode(m_table.m_LookupTree.GetHeldBytes())});
    }
    void Search() {
        PrintEach("complete-code test", "ns", kCodes, "target 400",
                  [&] { Expect(Found() == kCodes, "a code is missing"); });
        PrintEach("the same of codes that are not there", "ns", kCodes, "", [&] {
            for (const std::string &code : m_absent)
                Expect(!m_table.IsValidCode(code.c_str()), "a code is too many");
        });
    }
    size_t Found() {
        size_t found = 0;
        for (const std::string &code : m_asked)
            found += m_table.IsValidCode(code.c_str());
        return found;
    }
    void Type() {
        PrintEach("typing a code", "ns a char", kTyped * kCodeLength, "target 50", [&] {
            char typed[kCodeLength + 1];
            for (size_t i = 0; i < kTyped; ++i) {
                for (size_t length = 1; length <= kCodeLength; ++length) {
                    typed[length - 1] = m_asked[i][length - 1];
                    typed[length] = '\0';
                    Expect(m_table.IsValidPartialCode(typed), "a code cannot be typed");
                }
            }
        });
    }
    void Others() {
        const auto find = [&](const char *what, auto &&contains) {
            PrintEach(what, "ns", kCodes, "", [&] {
                size_t found = 0;
                for (const std::string &code : m_asked)
                    found += contains(code);
                Expect(found == kCodes, "a code is missing");
            });
        };
        const auto memory = [](size_t bytes) {
            Print("  memory, of the codes alone", "bytes a code", {static_cast<double>(bytes) / kCodes});
        };
        find("a sorted array, binary search",
             [&](const std::string &code) { return std::binary_search(m_codes.begin(), m_codes.end(), code); });
        memory(m_codes.size() * sizeof(std::string));
        g_counted = 0;
        const std::unordered_set<std::string, std::hash<std::string>, std::equal_to<>, CountingAllocator<std::string>>
            set(m_codes.begin(), m_codes.end(), kCodes);
        find("a hash set", [&](const std::string &code) { return set.count(code) != 0; });
        memory(g_counted);
        if (!StaticTrie::IsThere())
            return;
        const StaticTrie trie(m_codes);
        find("a static trie", [&](const std::string &code) { return trie.Contains(code); });
        memory(trie.Bytes());
    }

    LookupHost &m_host;
    std::string m_folder;
    const Codes &m_codes; // sorted
    Codes m_asked, m_absent;
    CLookupTableFile m_table;
};

} // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: lookup_bench FOLDER\n");
        return 2;
    }
    CBenchApp app;
    LookupHost host;
    for (const bool dense : {true, false}) {
        std::printf("%s codes\n", dense ? "dense" : "random");
        const Codes codes = dense ? DenseCodes() : RandomCodes(3);
        CLookupBench(host, argv[1], codes).Run();
    }
    CFile::Remove((std::string(argv[1]) + "/lookup_bench.lbn").c_str());
    return 0;
}
