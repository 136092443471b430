// Expressions over records: what they are true for, and how a mistake in one is named.
#include "DbfBytes.h"
#include "filter/DbfRecords.h"
#include "filter/Expression.h"
#include "filter/Utf8.h"
#include "SlowFilter.h"

#include <chrono>

using namespace dbftest;
using filter::Expression;
using filter::Mistake;

namespace {

// The rows that pass, as "0 2 "; or the mistake.
std::string passing(const dbf::Table &table, const std::string &text) {
    const filter::DbfRecords records(table);
    Mistake mistake;
    const auto expression = Expression::compile(text, records, mistake);
    if (!expression) {
        return mistake.text;
    }
    std::string rows;
    const auto outcome = expression->walk(
        0, table.rowCount(), [&](filter::Row row) { rows += std::to_string(row) + " "; }, {}, mistake);
    return outcome == Expression::Outcome::done ? rows : mistake.text;
}

std::string passing(const std::string &text) {
    MemoryFiles files;
    return passing(*openBytes(files, people()), text);
}

// The mistake and the byte where it was noticed.
std::string mistakeIn(const std::string &text) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    const filter::DbfRecords records(*table);
    Mistake mistake;
    if (Expression::compile(text, records, mistake)) {
        return "none";
    }
    return mistake.text + (mistake.position == Mistake::kNowhere ? "" : " @" + std::to_string(mistake.position));
}

} // namespace

TEST(FilterExpression, ComparesFieldsAsWhatTheyAre) {
    EXPECT_EQ(passing("PAY > 1000"), "0 ");
    EXPECT_EQ(passing("pay < 0 or Name = 'Anna'"), "0 1 ");
    EXPECT_EQ(passing("NAME like 'a%'"), "0 ");
    EXPECT_EQ(passing("PAY > '900'"), "0 ") << "a text is a number beside a number";
    EXPECT_EQ(passing("BORN < '1980-01-01'"), "0 ");
    EXPECT_EQ(passing("ACTIVE = 'T'"), "0 ");
    EXPECT_EQ(passing("length(NAME) = 5"), "2 ");
    EXPECT_EQ(passing("1"), "0 1 2 ");
    EXPECT_EQ(passing("0"), "");
    EXPECT_EQ(passing("PAY > 1000 -- the rich"), "0 ");
}

TEST(FilterExpression, EmptyNumbersDatesAndLogicalsAreNull) {
    EXPECT_EQ(passing("PAY is null"), "2 ");
    EXPECT_EQ(passing("BORN is null and ACTIVE is null"), "2 ");
    EXPECT_EQ(passing("PAY < 0"), "1 ") << "nothing is not less than 0";
    EXPECT_EQ(passing("NAME is null"), "") << "an empty text is a text";
}

TEST(FilterExpression, NumbersThatOverflowedAreTexts) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 2, 5, descriptor("N", 'N', 4)) + " ****" + "   17");
    EXPECT_EQ(passing(*table, "N = 17"), "1 ");
    EXPECT_EQ(passing(*table, "N = '****'"), "0 ");
}

TEST(FilterExpression, MistakesAreNamedWhereTheyAre) {
    EXPECT_EQ(mistakeIn("AGEE >= 15"), "There is no field \"AGEE\". @0");
    EXPECT_EQ(mistakeIn("NAME = \"Anna\""), "There is no field \"Anna\". Texts stand in single quotes. @7");
    EXPECT_EQ(mistakeIn("PAY >= "), "The expression is not complete.");
    EXPECT_EQ(mistakeIn("PAY >= 15) or (1"), "\")\" is not expected here. @9");
    EXPECT_EQ(mistakeIn("PAY >= 15)"), "\")\" is not expected here. @9");
    EXPECT_EQ(mistakeIn("(PAY >= 15"), "The expression is not complete.");
    EXPECT_EQ(mistakeIn("NAME like 'A%"), "The text that begins with 'A% has no closing quote. @10");
    EXPECT_EQ(mistakeIn("PAY == 1 NAME"), "\"NAME\" is not expected here. @9");
    EXPECT_EQ(mistakeIn("uppper(NAME) = 'A'"), "There is no function \"uppper\". @0");
    EXPECT_EQ(mistakeIn("upper(NAME, 2)"), "Wrong number of arguments to function upper(). @0");
    EXPECT_EQ(mistakeIn("PAY > 1 \\ 2"), "\"\\\" cannot be read. @8");
    EXPECT_EQ(mistakeIn("max(PAY) > 1").substr(0, 19), "Misuse of aggregate");
    EXPECT_EQ(mistakeIn(""), "The expression is empty.");
    EXPECT_EQ(mistakeIn(" \n"), "The expression is empty.");
    EXPECT_EQ(mistakeIn("PAY > ?"), "\"?\" stands for no value. @6");
    EXPECT_EQ(mistakeIn("PAY > :least"), "\":least\" stands for no value. @6");
    EXPECT_EQ(mistakeIn(std::string("PAY\0 > 1", 8)), "The expression holds a character that cannot be read. @3");
}

TEST(FilterExpression, OneRecordIsLookedAtAndNothingElse) {
    const std::string oneOnly =
        "A filter looks at one record at a time; it cannot hold a SELECT or a record's place.";
    EXPECT_EQ(mistakeIn("PAY > (select max(PAY) from records)"), oneOnly);
    EXPECT_EQ(mistakeIn("exists (select 1)"), oneOnly);
    EXPECT_EQ(mistakeIn("rowid > 1"), oneOnly);
    EXPECT_EQ(mistakeIn("oid > 1"), oneOnly);
    EXPECT_EQ(mistakeIn("1) union select (1").substr(0, 3), "\")\"");
    EXPECT_EQ(mistakeIn("1) limit (1"), "\")\" is not expected here. @1");
    EXPECT_EQ(mistakeIn("1 order by NAME"), "\"order\" is not expected here. @2");
    EXPECT_EQ(mistakeIn("1 limit 1"), "\"limit\" is not expected here. @2");
    EXPECT_NE(mistakeIn("1; drop table records"), "none");
    EXPECT_NE(mistakeIn("1;"), "none");
}

TEST(FilterExpression, TheTableItselfIsNoSetOfValues) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 2, 2, descriptor("A", 'C', 1)) + " a b");
    EXPECT_EQ(passing(*table, "A in records").substr(0, 36), "A filter looks at one record at a ti");
    EXPECT_EQ(passing(*table, "A in ('b', 'c')"), "1 ");
}

TEST(FilterExpression, TheBeginningOfALongMemoIsLookedAt) {
    MemoryFiles files;
    std::string memo(512, '\0');
    memo[6] = 0x02; // blocks of 512 bytes
    memo[7] = 0x00;
    files.files["t.fpt"] = memo + raw("\0\0\0\x01\0\x1E\x84\x80") + std::string(65'535, 'a') + "b" + std::string(1'934'464, 'c');
    const std::string bytes = header(0xF5, 1, 11, descriptor("NOTE", 'M', 10), 3) + "          1";
    EXPECT_EQ(passing(*openBytes(files, bytes), "NOTE like 'a%b' and length(NOTE) = 65536"), "0 ");
    files.files["t.fpt"] = memo + raw("\0\0\0\x01\0\x1E\x84\x80") + "ab" + std::string(1'999'998, '\x80');
    EXPECT_EQ(passing(*openBytes(files, bytes), "length(NOTE) = 21846 and octet_length(NOTE) = 65534"), "0 ")
        << "three bytes each, and no half character";
}

TEST(FilterExpression, AFieldMayBeCalledLikeARecordsPlaceOrLikeAKeyword) {
    MemoryFiles files;
    const auto table =
        openBytes(files, header(0x03, 2, 7, descriptor("ROWID", 'N', 3) + descriptor("ORDER", 'N', 3)) + "   1  5" + "   9  6");
    EXPECT_EQ(passing(*table, "ROWID = 9"), "1 ");
    EXPECT_EQ(passing(*table, "\"ORDER\" = 5"), "0 ");
    EXPECT_EQ(filter::nameInExpression("ORDER"), "\"ORDER\"");
    EXPECT_EQ(filter::nameInExpression("NAME_2"), "NAME_2");
    EXPECT_EQ(filter::nameInExpression("2ND"), "\"2ND\"");
    EXPECT_EQ(filter::nameInExpression("A\"B"), "\"A\"\"B\"");
    EXPECT_EQ(filter::nameInExpression(""), "\"\"");
}

TEST(FilterExpression, FieldsOfTheSameNameCanAllBeAskedFor) {
    MemoryFiles files;
    const auto table =
        openBytes(files, header(0x03, 1, 7, descriptor("A", 'N', 3) + descriptor("a", 'N', 3)) + "   1  5");
    EXPECT_EQ(passing(*table, "A = 1 and \"a#\" = 5"), "0 ");
}

TEST(FilterExpression, DepthAndLengthHaveBounds) {
    std::string deep;
    for (int i = 0; i < 5000; ++i) {
        deep += "not ";
    }
    EXPECT_EQ(mistakeIn(deep + "1"), "Expression tree is too large (maximum depth 200).");
    EXPECT_EQ(mistakeIn("NAME = '" + std::string(99'991, 'a') + "'"), "none");
    EXPECT_EQ(mistakeIn("NAME = '" + std::string(99'992, 'a') + "'"),
              "The expression has more than 100000 bytes.");
    const std::string text = "'" + std::string(33'000, 'a') + "'";
    EXPECT_EQ(passing("length(" + text + " || NAME) > 1"), "0 1 2 ");
    EXPECT_EQ(passing("NAME like " + text), "LIKE or GLOB pattern too complex.");
    EXPECT_EQ(passing("abs(-9223372036854775807 - 1) > 1"), "Integer overflow.");
}

TEST(FilterExpression, FunctionsThatLookAtARecordAreThere) {
    for (const char *expression : {"abs(PAY) >= 0",
                                   "char(65) = 'A'",
                                   "coalesce(PAY, 0) = 1200.5",
                                   "concat(NAME, 'x') = 'Annax'",
                                   "concat_ws('-', NAME, 1) = 'Anna-1'",
                                   "current_date > '2000-01-01'",
                                   "date(BORN) = '1972-02-29'",
                                   "NAME glob 'A*'",
                                   "ifnull(NAME, '') <> ''",
                                   "iif(PAY > 0, 1, 0)",
                                   "instr(NAME, 'nn') = 2",
                                   "julianday(BORN) > 0",
                                   "length(NAME) = 4",
                                   "NAME like 'a%'",
                                   "likely(1)",
                                   "lower(NAME) = 'anna'",
                                   "ltrim(NAME, 'A') = 'nna'",
                                   "max(PAY, 1) > 1",
                                   "min(PAY, 1) = 1",
                                   "nullif(NAME, '') is not null",
                                   "octet_length(NAME) = 4",
                                   "random() is not null",
                                   "replace(NAME, 'n', 'm') = 'Amma'",
                                   "round(PAY) > 1",
                                   "rtrim(NAME, 'a') = 'Ann'",
                                   "sign(PAY) = 1",
                                   "strftime('%Y', BORN) = '1972'",
                                   "substr(NAME, 2, 1) = 'n'",
                                   "substring(NAME, 1, 1) = 'A'",
                                   "time('12:00') = '12:00:00'",
                                   "trim(NAME, 'Aa') = 'nn'",
                                   "typeof(PAY) = 'real'",
                                   "unicode(NAME) = 65",
                                   "unixepoch(BORN) > 0",
                                   "unlikely(1)",
                                   "upper(NAME) = 'ANNA'"}) {
        EXPECT_EQ(passing("NAME = 'Anna' and " + std::string(expression)), "0 ") << expression;
    }
}

TEST(FilterExpression, FunctionsThatMakeLargeValuesOrReachElsewhereAreRefusedByName) {
    const auto refused = [](const std::string &name) {
        return "The function \"" + name + "\" cannot be used in a filter.";
    };
    for (const std::string name : {"zeroblob", "randomblob", "printf", "format", "hex", "unhex", "quote",
                                   "count", "sum", "group_concat", "json_array", "json_valid", "unistr",
                                   "sqlite_compileoption_used", "sqlite_compileoption_get"}) {
        EXPECT_EQ(passing("length(" + name + "(1)) > 1"), refused(name));
    }
    for (const std::string name :
         {"sqlite_version", "sqlite_source_id", "last_insert_rowid", "changes", "total_changes"}) {
        EXPECT_EQ(mistakeIn(name + "() = 1"), refused(name) + " @0");
    }
    EXPECT_EQ(passing("ZeroBlob(9) = 1"), refused("ZeroBlob"));
    EXPECT_EQ(passing("NAME -> 'a'"), refused("->"));
    EXPECT_EQ(passing("load_extension('a') = 1"), "There is no function \"load_extension\".");
}

TEST(FilterExpression, ReplacingAndTrimmingDoAsSqliteDoes) {
    EXPECT_EQ(passing("replace(NAME, 'n', '') = 'Aa' and replace(NAME, '', 'x') = NAME and replace('aaa', "
                      "'aa', 'b') = 'ba'"),
              "0 ");
    EXPECT_EQ(passing("replace(null, 'a', 'b') is null and replace('a', null, 'b') is null and replace('a', "
                      "'a', null) is null"),
              "0 1 2 ");
    EXPECT_EQ(passing("replace('a\xC3\xBC', '\xC3\xBC', 'ue') = 'aue' and replace(121, 1, 3) = '323'"),
              "0 1 2 ");
    EXPECT_EQ(passing("trim('xaxbx', 'x') = 'axb' and ltrim('xax', 'x') = 'ax' and rtrim('xax', 'x') = 'xa'"),
              "0 1 2 ");
    EXPECT_EQ(passing("trim('\xC3\xBC\xE2\x82\xAC"
                      "a\xC3\xBC', '\xE2\x82\xAC\xC3\xBC') = 'a' and trim('aa', 'a') = ''"),
              "0 1 2 ");
    EXPECT_EQ(passing("trim(null, 'a') is null and trim('a', null) is null and trim('ab', '') = 'ab' and "
                      "trim(' a ') = 'a'"),
              "0 1 2 ");
}

TEST(FilterExpression, ATextThatReplacingMakesTooLongIsRefusedByTheFunctionsName) {
    const std::string many = "'" + std::string(1000, 'a') + "'";
    EXPECT_EQ(passing("length(replace(" + many + ", 'a', '" + std::string(65, 'b') + "')) = 65000"),
              "0 1 2 ");
    EXPECT_EQ(passing("length(replace(" + many + ", 'a', '" + std::string(66, 'b') + "')) > 1"),
              "The function \"replace\" makes a text that is too long.");
    const std::string long_ = "replace(" + many + ", 'a', '" + std::string(65, 'b') + "')";
    EXPECT_EQ(passing("length(" + long_ + "||" + long_ + "||" + long_ + ") > 1"), "String or blob too big.");
}

TEST(FilterExpression, AWalkCanBeStopped) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 10000, 2, descriptor("A", 'C', 1)) + std::string(20000, ' '));
    const filter::DbfRecords records(*table);
    Mistake mistake;
    const auto expression = Expression::compile("1", records, mistake);
    ASSERT_TRUE(expression);
    filter::Row asked = 0, passed = 0;
    const auto walk = [&](const filter::GoOn &goOn) {
        passed = 0;
        return expression->walk(0, 10000, [&](filter::Row) { ++passed; }, goOn, mistake);
    };
    EXPECT_EQ(walk([&](filter::Row done) { asked = done; return false; }), Expression::Outcome::stopped);
    EXPECT_LT(passed, 10000u);
    EXPECT_EQ(asked, passed);
    EXPECT_EQ(mistake.text, "");
    EXPECT_EQ(walk([](filter::Row) { return true; }), Expression::Outcome::done);
    EXPECT_EQ(passed, 10000u);
}

TEST(FilterExpression, AWalkCanBeStoppedWithinARecord) {
    MemoryFiles files;
    const auto table = openBytes(files, slowRecord(files));
    const filter::DbfRecords records(*table);
    Mistake mistake;
    const auto expression = Expression::compile(slowExpression(), records, mistake);
    ASSERT_TRUE(expression) << mistake.text;
    const auto begun = std::chrono::steady_clock::now();
    filter::Row asked = 99;
    const auto stop = [&](filter::Row done) {
        asked = done;
        return false;
    };
    EXPECT_EQ(expression->walk(
                  0, 1, [](filter::Row) {}, stop, mistake),
              Expression::Outcome::stopped);
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(2))
        << "all of it takes some twenty";
    EXPECT_EQ(asked, 0u);
    EXPECT_EQ(mistake.text, "");
}

TEST(FilterExpression, AFewLongTextsAreTrimmedInNoTime) {
    MemoryFiles files;
    const auto table = openBytes(files, slowRecord(files));
    const auto begun = std::chrono::steady_clock::now();
    EXPECT_EQ(passing(*table, "trim(NOTE, replace(NOTE, 'a', 'b') || 'a') = '' and rtrim(NOTE, replace(NOTE, "
                              "'a', 'b')) = NOTE"),
              "0 ");
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(1));
}

TEST(FilterExpression, WhatAWalksCallerThrowsDoesNotGoThroughSqlite) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 10000, 2, descriptor("A", 'C', 1)) + std::string(20000, ' '));
    const filter::DbfRecords records(*table);
    Mistake mistake;
    const auto expression = Expression::compile("1", records, mistake);
    ASSERT_TRUE(expression);
    const auto fails = [](filter::Row) -> bool { throw std::bad_alloc(); };
    EXPECT_EQ(expression->walk(0, 10000, [](filter::Row) {}, fails, mistake), Expression::Outcome::failed);
    EXPECT_EQ(mistake.text, "Low memory - cannot carry out operation!");
    EXPECT_THROW(expression->walk(0, 10000, [](filter::Row row) { if (row == 5) throw std::bad_alloc(); }, {}, mistake),
                 std::bad_alloc);
    filter::Row passed = 0;
    EXPECT_EQ(expression->walk(2, 4, [&](filter::Row) { ++passed; }, {}, mistake), Expression::Outcome::done);
    EXPECT_EQ(passed, 2u) << "the walk that was left does not go on";
}

TEST(FilterExpression, ATextEndsWhereTheGridEndsIt) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 1, 6, descriptor("A", 'C', 5)) + raw(" ab\0cd"));
    EXPECT_EQ(passing(*table, "A = 'ab' and length(A) = 2 and A || 'x' = 'abx'"), "0 ");
}

TEST(FilterExpression, ATableMayHaveAsManyFieldsAsItsHeaderHolds) {
    MemoryFiles files;
    std::string fields;
    for (int i = 1; i <= 2046; ++i) {
        fields += descriptor("F" + std::to_string(i), 'C', 1);
    }
    const auto table = openBytes(files, header(0x03, 1, 2047, fields) + " " + std::string(2045, 'a') + "b");
    ASSERT_TRUE(table);
    EXPECT_EQ(passing(*table, "F1 = 'a' and F2046 = 'b'"), "0 ");
}

TEST(FilterExpression, ATableWithoutRecordsHasNoneThatPass) {
    MemoryFiles files;
    EXPECT_EQ(passing(*openBytes(files, header(0x03, 0, 2, descriptor("A", 'C', 1))), "A = ''"), "");
}

TEST(FilterText, GoesToUtf8AndBack) {
    const dbf::CodePage *western = dbf::findCodePage(1252);
    EXPECT_EQ(filter::toUtf8("M\xFCller \x80", western), "M\xC3\xBCller \xE2\x82\xAC");
    EXPECT_EQ(filter::fromUtf8("M\xC3\xBCller \xE2\x82\xAC", western), "M\xFCller \x80");
    EXPECT_EQ(filter::fromUtf8("\xCE\xA9|\xF0\x9F\x98\x80|\xE2", western), "?|?|?");
    EXPECT_EQ(filter::toUtf8("a\xFC", nullptr), "a?");
    EXPECT_EQ(filter::fromUtf8("a\xC3\xBC", nullptr), "a?");
    EXPECT_EQ(filter::charactersBefore("M\xC3\xBCller", 3), 2u);
}

TEST(FilterExpression, LettersBeyondAsciiCompareAsTheyAreShown) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 1, 7, descriptor("NAME", 'C', 6), 3) + " M\xFCller");
    EXPECT_EQ(passing(*table, "NAME = 'M\xC3\xBCller' and length(NAME) = 6"), "0 ");
    EXPECT_EQ(passing(*table, "NAME like 'm_ller'"), "0 ");
}
