// Where statements begin and end, and what else there is in a script.

#include <gtest/gtest.h>

#include "splitting.h"

using namespace script_tests;

namespace {

using texts = std::vector<std::string>;

struct splitting {
    const char *name;
    std::string script;
    texts pieces; // as shown() has them
    backslashes meaning = backslashes::are_characters;
};

using namespace std::string_literals;

const splitting splittings[] = {
    {"Nothing", "", {}},
    {"Blanks", " \t\r\n\f\v ", {}},
    {"Semicolons", ";;; ;\n;", {}},
    {"One", "select 1;", {"select 1"}},
    {"Two", "select 1; select 2;", {"select 1", "select 2"}},
    {"NoFinalSemicolon", "select 1;\nselect 2\n", {"select 1", "select 2"}},
    {"EmptyStatements", ";select 1;;\n;select 2;;", {"select 1", "select 2"}},
    {"ReturnsAndNewlines", "select 1;\r\nselect\r\n2;\r\n", {"select 1", "select\r\n2"}},
    {"Nul", "select\0 1;select 2;"s, {"select\0 1"s, "select 2"}},
    {"InvalidUtf8", "select \xff\xfe;select '\xc3';", {"select \xff\xfe", "select '\xc3'"}},

    {"LineComment", "-- a; 'b\nselect 1;", {"C -- a; 'b", "select 1"}},
    {"LineCommentEndsAtReturn", "-- a;\rselect 1;", {"C -- a;", "select 1"}},
    {"LineCommentAtEnd", "select 1; -- a", {"select 1", "C -- a"}},
    {"OnlyComments", "-- a\n/* b; */\n--", {"C -- a", "C /* b; */", "C --"}},
    {"BlockComment", "/* a; 'b */select 1;", {"C /* a; 'b */", "select 1"}},
    {"NestedComment", "/* a /* b; */ c; */select 1;", {"C /* a /* b; */ c; */", "select 1"}},
    {"StarsAndSlashes",
     "/***/select 1;/*/ */select 2;",
     {"C /***/", "select 1", "C /*/ */", "select 2"}},
    {"CommentInStatement", "select /* ; */ 1 -- ;\n + 2;", {"select /* ; */ 1 -- ;\n + 2"}},
    {"CommentBeforeSemicolon",
     "select 1 -- a\n /* b */ ; select 2",
     {"select 1", "C -- a", "C /* b */", "select 2"}},
    {"OperatorThenComment",
     "select 1 +/* ; */ 2; select 3 *-- ;\n 4;",
     {"select 1 +/* ; */ 2", "select 3 *-- ;\n 4"}},
    {"ThreeDashes", "select 1 ---; a\n;", {"select 1", "C ---; a"}},
    {"UnendedComment",
     "select 1; /* a /* b */ ; select 2;",
     {"select 1", "C /* a /* b */ ; select 2;"}},

    {"Strings", "select ';', 'a''b;', '';select 2;", {"select ';', 'a''b;', ''", "select 2"}},
    {"StringOverLines", "select 'a;\nb;\r\nc';select 2;", {"select 'a;\nb;\r\nc'", "select 2"}},
    {"BackslashIsCharacter", "select '\\';select 2;", {"select '\\'", "select 2"}},
    {"BackslashEscapes", "select '\\';select 2;", {"select '\\';select 2;"}, backslashes::escape},
    {"NationalStringWithEscapes",
     "select N'\\';' ;select 2;",
     {"select N'\\';'", "select 2"},
     backslashes::escape},
    {"BitStringsHaveNoEscapes",
     "select B'\\';select X'\\';select U&'\\';select 2",
     {"select B'\\'", "select X'\\'", "select U&'\\'", "select 2"},
     backslashes::escape},
    {"EscapeString",
     "select E'a\\';b', e'\\\\';select 2;",
     {"select E'a\\';b', e'\\\\'", "select 2"}},
    {"EscapeStringOfDoubledQuotes",
     "select E'a'';\\';b';select 2;",
     {"select E'a'';\\';b'", "select 2"}},
    {"EscapeStringInNextLine", "select E'a'\n';b';select 2;", {"select E'a'\n';b'", "select 2"}},
    {"NoEscapesInNextLine",
     "select E'a' -- c\n'\\';select 2;",
     {"select E'a' -- c\n'\\'", "select 2"}},
    {"EscapesAfterReturn", "select E'a'\r'\\';b';select 2;", {"select E'a'\r'\\';b'", "select 2"}},
    {"NoEscapesAfterReturnBehindAnotherLine",
     "select E'a'\n'b'\r'\\';select 2;",
     {"select E'a'\n'b'\r'\\'", "select 2"}},
    {"NoEscapesInSameLine", "select E'a' '\\';select 2;", {"select E'a' '\\'", "select 2"}},
    {"NoEscapesAfterBlockComment",
     "select E'a'/*\n*/'\\';select 2;",
     {"select E'a'/*\n*/'\\'", "select 2"}},
    {"PrefixedStrings",
     "select B'0;', X'1;', N';', U&'\\0041;', b';', x';', n';', u&';';select 2",
     {"select B'0;', X'1;', N';', U&'\\0041;', b';', x';', n';', u&';'", "select 2"}},
    {"PrefixIsEndOfName", "select xe'\\';select 2;", {"select xe'\\'", "select 2"}},
    {"UnendedString", "select 'a; select 2;\n", {"select 'a; select 2;\n"}},
    {"UnendedEscapeString", "select E'a\\'; select 2;", {"select E'a\\'; select 2;"}},

    {"QuotedNames",
     "select \";\", \"a\"\"b;\", U&\";\";select 2;",
     {"select \";\", \"a\"\"b;\", U&\";\"", "select 2"}},
    {"UnendedName", "select \"a; select 2;", {"select \"a; select 2;"}},
    {"DollarStrings",
     "select $$a;b$$, $t$;$$;$t$, $t$ $u$ ; $u$ $t$;select 2;",
     {"select $$a;b$$, $t$;$$;$t$, $t$ $u$ ; $u$ $t$", "select 2"}},
    {"DollarTagHasAccents",
     "select $\xc3\xa9$;$\xc3\xa9$;select 2",
     {"select $\xc3\xa9$;$\xc3\xa9$", "select 2"}},
    {"DollarTagsOverlap", "select $a$;$b$a$;select 2", {"select $a$;$b$a$", "select 2"}},
    {"DollarTagHasLetterCase", "select $a$;$A$;$a$;select 2", {"select $a$;$A$;$a$", "select 2"}},
    {"NoTagBeginsWithDigit", "select $1$;select 2", {"select $1$", "select 2"}},
    {"NameHasDollars", "select a$b$;select $b$;", {"select a$b$", "select $b$;"}},
    {"UnendedDollarString", "select $$a; $x$;", {"select $$a; $x$;"}},

    {"JunkAfterNumber", "select 1E'\\';select 1a$$;$$;", {"select 1E'\\'", "select 1a$$", "$$;"}},
    {"JunkAfterParameter", "select $1a$$;select 2", {"select $1a$$", "select 2"}},
    {"RealBeforeDollar", "select 1.5$$;$$;select 2", {"select 1.5$$;$$", "select 2"}},

    {"Parentheses",
     "create rule r as on insert to t do (select 1; select 2);select 3;",
     {"create rule r as on insert to t do (select 1; select 2)", "select 3"}},
    {"OpenParenthesis", "select (1; select 2;", {"select (1; select 2;"}},
    {"ClosingParenthesisTooMany", "select 1); select 2;", {"select 1)", "select 2"}},
    {"ParenthesesInStrings",
     "select '('; select $$($$; select \"(\"; select 1;",
     {"select '('", "select $$($$", "select \"(\"", "select 1"}},

    {"BodyOfFunction",
     "create function f() begin atomic select 1; select 2; end; select 3;",
     {"create function f() begin atomic select 1; select 2; end", "select 3"}},
    {"BodyWithCase",
     "CREATE OR REPLACE PROCEDURE p() BEGIN ATOMIC SELECT CASE WHEN a THEN b END; END; select 1;",
     {"CREATE OR REPLACE PROCEDURE p() BEGIN ATOMIC SELECT CASE WHEN a THEN b END; END",
      "select 1"}},
    {"BodyInDollars",
     "create function f() as $$ begin select 1; end; $$; begin; select 2; end;",
     {"create function f() as $$ begin select 1; end; $$", "begin", "select 2", "end"}},
    {"NoBodyOfForeignTable",
     "create foreign table t begin; select 1;",
     {"create foreign table t begin", "select 1"}},
    {"NoBodyInParentheses",
     "create function f(begin int) return 1; select 1;",
     {"create function f(begin int) return 1", "select 1"}},
    {"QuotedBeginIsName",
     "create function f() \"begin\"; select 1;",
     {"create function f() \"begin\"", "select 1"}},
    {"UnendedBody",
     "create function f() begin atomic select 1; select 2;",
     {"create function f() begin atomic select 1; select 2;"}},

    {"CommandsSend",
     "select 1 \\g\nselect 2 \\gx\nselect 3 \\gset x_\nselect 4",
     {"select 1", "\\ \\g", "select 2", "\\ \\gx", "select 3", "\\ \\gset x_", "select 4"}},
    {"SemicolonOfCommand",
     "select 1\\; select 2\\;select 3;",
     {"select 1", "select 2", "select 3"}},
    {"ColonOfCommand", "select 1\\:\\:int; select 2;", {"select 1\\:\\:int", "select 2"}},
    {"CommandLine", "\\set a 'b;c'\nselect 1;", {"\\ \\set a 'b;c'", "select 1"}},
    {"CommandEnds", "\\echo a;b \\\\ select 1;", {"\\ \\echo a;b \\\\", "select 1"}},
    {"CommandsInLine",
     "\\set a 1 \\echo b\nselect 1;",
     {"\\ \\set a 1 ", "\\ \\echo b", "select 1"}},
    {"QuotedArguments",
     "\\echo 'a\\\\b''\\'' \"c\\\\\" `d\\\\` \\\\select 1;",
     {"\\ \\echo 'a\\\\b''\\'' \"c\\\\\" `d\\\\` \\\\", "select 1"}},
    {"UnendedArgument", "\\echo 'a \\\\ b\nselect 1;", {"\\ \\echo 'a \\\\ b", "select 1"}},
    {"CommandOfLine",
     "\\! echo \\\\ a;\n\\bogus \\\\ a;\n\\\\ a;\nselect 1;",
     {"\\ \\! echo \\\\ a;", "\\ \\bogus \\\\ a;", "\\ \\\\ a;", "select 1"}},
    {"OutputToProgram",
     "select 1 \\g | cat \\\\ a;\nselect 2;",
     {"select 1", "\\ \\g | cat \\\\ a;", "select 2"}},
    {"CommandForgets", "select 1 + \\r\nselect 2;", {"\\ select 1 + \\r", "select 2"}},
    {"CommandInStatement",
     "select 1 \\echo ;\n + 2; select 3;",
     {"select 1 \\echo ;\n + 2", "select 3"}},
    {"CommandInStringIsNone", "select '\n\\g\n'; select 2;", {"select '\n\\g\n'", "select 2"}},

    {"Copy",
     "copy t from stdin;\nselect 1;\n'\n\\.\nselect 2;",
     {"copy t from stdin", "D select 1;\n", "D '\n", "D \\.\n", "select 2"}},
    {"CopyWithReturns",
     "COPY t (a) FROM STDIN WITH (FORMAT csv);\r\na;\r\n\\.\r\nselect 2;",
     {"COPY t (a) FROM STDIN WITH (FORMAT csv)", "D a;\r\n", "D \\.\r\n", "select 2"}},
    {"CommentsBeforeSemicolonOfCopy",
     "copy t from stdin -- a\n \\echo b\n ; -- c\n1\n\\.\nselect 2;",
     {"copy t from stdin -- a\n \\echo b\n ", "C -- c", "D 1\n", "D \\.\n", "select 2"}},
    {"CopyOfNothing",
     "copy t from stdin;\n\\.\nselect 2;",
     {"copy t from stdin", "D \\.\n", "select 2"}},
    {"CopyToEnd",
     "copy t from stdin;\na;\n\\. \n \\.\n\\.",
     {"copy t from stdin", "D a;\n", "D \\. \n", "D  \\.\n", "D \\."}},
    {"CopyWithoutData", "copy t from stdin;", {"copy t from stdin"}},
    {"StatementsAfterCopy",
     "copy t from stdin; -- a\n1;\n\\.\ncopy t from stdin;select 2;\n3;\n\\.\n",
     {"copy t from stdin", "C -- a", "D 1;\n", "D \\.\n", "copy t from stdin", "select 2", "D 3;\n",
      "D \\.\n"}},
    {"TwoCopies",
     "copy t from stdin;copy u from stdin;\n1;\n\\.\n2;\n\\.\nselect 3;",
     {"copy t from stdin", "copy u from stdin", "D 1;\n", "D \\.\n", "D 2;\n", "D \\.\n",
      "select 3"}},
    {"CopySentByCommand",
     "copy t from stdin \\g\n1;\n\\.\nselect 3;",
     {"copy t from stdin", "\\ \\g", "D 1;\n", "D \\.\n", "select 3"}},
    {"CopyOfPsql",
     "\\copy t from stdin\n1;\n\\.\nselect 3;",
     {"\\ \\copy t from stdin", "D 1;\n", "D \\.\n", "select 3"}},
    {"CopyOfPsqlFromFile",
     "\\copy t from 'stdin'\nselect 3;",
     {"\\ \\copy t from 'stdin'", "select 3"}},
    {"CopyWithinStatement",
     "select 1 +\n\\copy t from stdin\n;\n\\.\n2; select 3;",
     {"select 1 +\n\\copy t from stdin\n;\n\\.\n2", "select 3"}},
    {"CopyFromFileHasNoData",
     "copy t from 'stdin';\nselect 1;",
     {"copy t from 'stdin'", "select 1"}},
    {"CopyOfQueryHasNoData",
     "copy (select a from stdin) to stdout;\nselect 1;",
     {"copy (select a from stdin) to stdout", "select 1"}},
    {"NoCopy", "select a from stdin;\nselect 1;", {"select a from stdin", "select 1"}},
};

std::string name_of_case(const testing::TestParamInfo<splitting> &info) { return info.param.name; }

class Splitter : public testing::TestWithParam<splitting> {};

TEST_P(Splitter, FindsThePieces) {
    const splitting &wanted = GetParam();
    EXPECT_EQ(shown(split(wanted.script, wanted.script.size() + 1, wanted.meaning)), wanted.pieces);
}

TEST_P(Splitter, DoesNotDependOnTheSizesItReads) {
    const splitting &wanted = GetParam();
    const auto whole = split(wanted.script, wanted.script.size() + 1, wanted.meaning);
    for (const std::size_t size : {1U, 2U, 3U, 7U})
        EXPECT_EQ(split(wanted.script, size, wanted.meaning), whole) << size;
}

TEST_P(Splitter, LosesNothing) {
    const std::string &script = GetParam().script;
    std::size_t passed = 0;
    const auto is_dropped = [&](std::size_t end) {
        return script.find_first_not_of(" \t\n\r\f\v;\\", passed) >= end;
    };
    position at;
    for (const kept_piece &each : split(script, script.size() + 1, GetParam().meaning)) {
        ASSERT_GE(each.offset, passed);
        EXPECT_TRUE(is_dropped(each.offset)) << each;
        EXPECT_EQ(script.substr(each.offset, each.text.size()), each.text);
        at = at.after(script.substr(passed, each.offset - passed));
        EXPECT_EQ(each.line, at.line) << each;
        EXPECT_EQ(each.column, at.column) << each;
        at = at.after(each.text);
        passed = each.offset + each.text.size();
    }
    EXPECT_TRUE(is_dropped(script.size()));
}

// What a script has more than once must not change: the buffers end elsewhere each time.
TEST_P(Splitter, FindsThePiecesAfterAnyNumberOfBlanks) {
    const splitting &wanted = GetParam();
    for (const std::size_t blanks : {1U, 60U, 63U, 64U, 65U, 16380U, 65530U}) {
        const std::string script = std::string(blanks, '\n') + wanted.script;
        EXPECT_EQ(shown(split(script, 4096, wanted.meaning)), wanted.pieces) << blanks;
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, Splitter, testing::ValuesIn(splittings), name_of_case);

TEST(SplitterPositions, CountCharacters) {
    const auto pieces =
        split("\xc3\xa9 select '\xe2\x82\xac';/*\xc3\xa9*/ select 2;\n  select 3", 3);
    ASSERT_EQ(pieces.size(), 6U);
    EXPECT_EQ(pieces[0].column, 1U);
    EXPECT_EQ(pieces[1].text, "/*\xc3\xa9*/");
    EXPECT_EQ(pieces[1].column, 14U);
    EXPECT_EQ(pieces[3].column, 20U);
    EXPECT_EQ(pieces[3].offset, 23U);
    EXPECT_EQ(pieces[5].line, 2U);
    EXPECT_EQ(pieces[5].column, 3U);
}

TEST(SplitterStatements, HaveTheirVerb) {
    const auto pieces = split("SELECT 1;(select 2);\"select\" 3; /* a */ with;1", 100);
    texts verbs;
    for (const kept_piece &each : pieces)
        if (each.kind == piece_kind::statement)
            verbs.push_back(each.verb);
    EXPECT_EQ(verbs, (texts{"SELECT", "", "", "with", ""}));
}

TEST(SplitterStatements, KnowWhetherACommandEndsThem) {
    const auto pieces = split("select 1 \\g\nselect 2; select 3", 100);
    std::vector<bool> ended;
    for (const kept_piece &each : pieces)
        if (each.kind == piece_kind::statement)
            ended.push_back(each.is_ended_by_command);
    EXPECT_EQ(ended, (std::vector<bool>{true, false, false}));
}

TEST(SplitterStrings, AreReadAnotherWayFromTheNextStatementOn) {
    text_source from("select '\\'; select '\\';'; select 3");
    splitter pieces(from);
    EXPECT_EQ(pieces.next()->text, "select '\\'");
    pieces.set_plain_strings(backslashes::escape);
    EXPECT_EQ(pieces.next()->kind, piece_kind::blank);
    EXPECT_EQ(pieces.next()->text, "select '\\';'");
}

struct marked {
    const char *statement;
    texts marks;
};

const marked marked_statements[] = {
    {"a = $1 and b = $12", {"$:$1", "$:$12"}},
    {"a = ? and b ?| c", {"?:?", "?:?"}},
    {"a = :name and b = :_n1", {":name::name", ":name::_n1"}},
    {"a::int, b[1:2], c := 3, :1", {}},
    {"a:::b", {":name::b"}},
    {"a = %s and b = %(name)s", {"%s:%s", "%()s:%(name)s"}},
    {"a %sum, a %(b)sum, a % s, a %(b) s", {}},
    {"a %% b", {"%%:%%"}},
    {"limit $1 offset ?", {"$:$1#", "?:?#"}},
    {"limit /* c */ $1, $2", {"comment:/* c */#", "$:$1#", "$:$2"}},
    {"'a'", {"string:'a'+"}},
    {"'a''b'", {"string:'a''b'"}},
    {"'a%%b'", {"string:'a%%b'"}},
    {"'a\\'", {"string:'a\\'"}},
    {"'a\\b'", {"string:'a\\b'+"}},
    {"E'a'", {"escape:E'a'"}},
    {"E'a' -- c\n 'b'\r\n'c'", {"escape:E'a' -- c\n 'b'\r\n'c'"}},
    {"E'a' 'b'", {"escape:E'a'", "string:'b'+"}},
    {"$x$a$x$, $$b$$", {"dollar-string:$x$a$x$", "dollar-string:$$b$$"}},
    {"N'a', B'0', X'1', U&'b'",
     {"prefixed:N'a'+", "prefixed:B'0'+", "prefixed:X'1'+", "prefixed:U&'b'"}},
    {"'?', \"$1\", $$:a$$", {"string:'?'+", "dollar-string:$$:a$$"}},
    {"1 -- c ?\n, /* $1 */ 2", {"comment:-- c ?", "comment:/* $1 */"}},
    {"1 \\echo :a\n+ 2", {"comment:\\echo :a"}},
    {"x$1", {}},
    {"$1a", {}},
};

TEST(SplitterMarks, AreFound) {
    for (const marked &each : marked_statements) {
        const std::string script = std::string("select ") + each.statement + ";";
        for (const std::size_t size : {1U, 3U, 100U}) {
            const auto pieces = split(script, size);
            ASSERT_EQ(pieces.size(), 1U) << script;
            EXPECT_EQ(pieces[0].marks, each.marks) << script;
        }
    }
}

TEST(SplitterSizes, LongTokensAreWhole) {
    constexpr std::size_t sizes[] = {63, 64, 65, 128, 4095, 4096, 16384, 65536, 300000};
    const std::pair<std::string, std::string> ends[] = {
        {"'", "'"},    {"E'", "\\''"}, {"\"", "\""}, {"$q$", "$q$"}, {"/*", "*/ 1"},
        {"--", "\n1"}, {"b", ""},      {":", ""},    {"1+", ""},     {"%(", ")s"}};
    for (const auto &[begin, end] : ends)
        for (const std::size_t size : sizes) {
            const std::string statement = "select " + begin + std::string(size, 'a') + end;
            const auto pieces = split(statement + ";select 2;", 5000);
            ASSERT_EQ(pieces.size(), 2U) << begin << size;
            EXPECT_EQ(pieces[0].text, statement) << begin << size;
            EXPECT_EQ(pieces[1].text, "select 2") << begin << size;
        }
}

TEST(SplitterSizes, LongBlanksAndLinesAreWhole) {
    for (const std::size_t size : {63U, 64U, 65U, 70000U}) {
        const std::string blanks(size, ' ');
        EXPECT_EQ(split(blanks + "select 1;", 4096)[0].text, blanks);
        EXPECT_EQ(split("select" + blanks + "1;", 4096)[0].text, "select" + blanks + "1");
        EXPECT_EQ(shown(split("copy t from stdin;\n" + blanks + "\n\\.\n", 4096)),
                  (texts{"copy t from stdin", "D " + blanks + "\n", "D \\.\n"}));
        EXPECT_EQ(shown(split("copy t from stdin;" + blanks + "\n" + blanks + "\n\\.\n", 4096)),
                  (texts{"copy t from stdin", "D " + blanks + "\n", "D \\.\n"}));
        EXPECT_EQ(shown(split("\\echo " + blanks + "\nselect 1;", 4096)),
                  (texts{"\\ \\echo " + blanks, "select 1"}));
    }
}

} // namespace
