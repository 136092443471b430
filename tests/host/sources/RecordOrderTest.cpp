// The order of records against a plain list of numbers.
#include "dbf/RecordOrder.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>
#include <vector>

using dbf::RecordOrder;
using Model = std::vector<std::uint64_t>;

static Model contents(const RecordOrder &order) {
    Model rows;
    for (RecordOrder::Row row = 0; row < order.size(); ++row) {
        rows.push_back(order.at(row));
    }
    return rows;
}

TEST(RecordOrder, BeginsWithRecordsInOrder) {
    EXPECT_EQ(contents(RecordOrder(4)), (Model{0, 1, 2, 3}));
    EXPECT_EQ(contents(RecordOrder()), Model());
    EXPECT_EQ(RecordOrder(10'000'000).runs(), 1u);
}

TEST(RecordOrder, InsertsInMiddleAndAtEnds) {
    RecordOrder order(3);
    order.insert(1, 10, 2);
    order.insert(0, 20, 1);
    order.insert(6, 30, 1);
    EXPECT_EQ(contents(order), (Model{20, 0, 10, 11, 1, 2, 30}));
}

TEST(RecordOrder, KeepsRowsAppendedOneByOneInOneRun) {
    RecordOrder order(3);
    for (std::uint64_t record = 3; record < 1000; ++record) {
        order.insert(record, record, 1);
    }
    EXPECT_EQ(order.runs(), 1u);
    EXPECT_EQ(order.at(999), 999u);
}

TEST(RecordOrder, TakesOutAndPutsBack) {
    RecordOrder order(6);
    RecordOrder::Piece piece = order.take(2, 3);
    EXPECT_EQ(piece.size(), 3u);
    EXPECT_EQ(contents(order), (Model{0, 1, 5}));
    order.put(3, std::move(piece));
    EXPECT_EQ(contents(order), (Model{0, 1, 5, 2, 3, 4}));
}

TEST(RecordOrder, AgreesWithListThroughRandomChanges) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&](std::size_t n) {
            return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
        };
        RecordOrder order(50);
        Model model(50);
        std::iota(model.begin(), model.end(), 0);
        std::uint64_t next = 50;
        RecordOrder::Piece piece;
        Model pieceModel;
        for (int step = 0; step < 400; ++step) {
            const std::size_t row = below(model.size() + 1);
            const auto at = model.begin() + static_cast<std::ptrdiff_t>(row);
            if (const std::size_t what = below(3); what == 0) {
                const std::size_t count = 1 + below(5);
                order.insert(row, next, count);
                Model fresh(count);
                std::iota(fresh.begin(), fresh.end(), next);
                model.insert(at, fresh.begin(), fresh.end());
                next += count;
            } else if (what == 1) {
                const std::size_t count = below(model.size() - row + 1) % 9;
                piece = order.take(row, count);
                pieceModel.assign(at, at + static_cast<std::ptrdiff_t>(count));
                model.erase(at, at + static_cast<std::ptrdiff_t>(count));
                ASSERT_EQ(piece.size(), count);
            } else {
                order.put(row, std::move(piece));
                piece = {};
                model.insert(at, pieceModel.begin(), pieceModel.end());
                pieceModel.clear();
            }
            ASSERT_EQ(contents(order), model) << "seed " << seed << " step " << step;
            if (!model.empty()) {
                const std::size_t any = below(model.size());
                ASSERT_EQ(order.at(any), model[any]);
            }
        }
    }
}

TEST(RecordOrder, StaysShallowUnderManyChanges) {
    RecordOrder order(10'000'000);
    std::mt19937 random(7);
    for (std::uint64_t i = 0; i < 200'000; ++i) {
        order.insert(random() % order.size(), 10'000'000 + 2 * i, 1);
        order.take(random() % order.size(), 1);
    }
    EXPECT_EQ(order.size(), 10'000'000u);
    EXPECT_GT(order.runs(), 200'000u);
}

// Rows taken out of one run, from the end, from the start or in any order, once made a list of it.
TEST(RecordOrder, StaysShallowWhereverRowsAreTakenAndInserted) {
    constexpr RecordOrder::Row kRows = 20000;
    RecordOrder fromEnd(kRows), fromStart(kRows), anywhere(kRows), inserted(kRows);
    std::mt19937 random(5);
    for (RecordOrder::Row i = 1; i <= kRows / 2; ++i) {
        fromEnd.take(kRows - 2 * i, 1);
        fromStart.take(i, 1);
        anywhere.take(random() % anywhere.size(), 1);
        inserted.insert(2 * i, kRows + 2 * i, 1);
    }
    for (const RecordOrder *order : {&fromEnd, &fromStart, &anywhere, &inserted}) {
        EXPECT_GT(order->runs(), 4000u);
        EXPECT_LT(order->depth(), 60u) << order->runs() << " runs";
    }
}
