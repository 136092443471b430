// Random events leave a grid control whole. Another run: ORVANE_EVENTS_SEED and ORVANE_EVENTS_COUNT. Where the
// screen was found stale, ORVANE_EVENTS_LOOK, the number of the last event behind which it was not, finds the one
// that made it so.
#include "RandomEvents.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr unsigned kSeed = 20011;
constexpr unsigned kCount = 200000;
constexpr unsigned kScreenEvery = 400; // a picture takes as long as many events

unsigned Setting(const char *name, unsigned otherwise) {
    const char *text = std::getenv(name);
    return text != nullptr ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : otherwise;
}

// Where the run is, for when the process dies of an event.
struct Progress {
    unsigned seed = 0, number = 0;
    const RandomEvents *events = nullptr;
    std::string Where() const {
        return "seed " + std::to_string(seed) + ", event " + std::to_string(number) + ": " + events->Text();
    }
} g_progress;

void Tell() {
    if (g_progress.events != nullptr)
        std::fprintf(stderr, "died at %s\n", g_progress.Where().c_str());
    std::fflush(stderr);
}

LONG WINAPI TellException(EXCEPTION_POINTERS *) {
    Tell();
    return EXCEPTION_CONTINUE_SEARCH;
}

void TellAbort(int) {
    Tell();
    __builtin_trap();
}

} // namespace

TEST(RandomEventsTest, TheGridStaysWholeUnderRandomEvents) {
    ::SetUnhandledExceptionFilter(TellException);
    std::signal(SIGABRT, TellAbort);
    g_progress.seed = Setting("ORVANE_EVENTS_SEED", kSeed);
    const unsigned count = Setting("ORVANE_EVENTS_COUNT", kCount);
    const unsigned look = Setting("ORVANE_EVENTS_LOOK", count);
    RandomEvents events(g_progress.seed);
    g_progress.events = &events;
    for (g_progress.number = 1; g_progress.number <= count; ++g_progress.number) {
        events.Next();
        const std::string broken = events.Broken(g_progress.number);
        ASSERT_EQ("", broken) << g_progress.Where();
        if (g_progress.number % kScreenEvery == 0 || g_progress.number > look) {
            ASSERT_FALSE(events.ScreenIsStale()) << g_progress.Where();
        }
    }
    g_progress.events = nullptr;
}
