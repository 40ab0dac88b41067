#include "PoChecks.h"

#include <gtest/gtest.h>

using kiv::rules::CheckPluralRange;
using kiv::rules::CompareCFormat;
using kiv::rules::EvaluatePlural;
using kiv::rules::FormatArgument;
using kiv::rules::FormsOfOneNumber;
using kiv::rules::ParseCFormat;
using kiv::rules::ParsePluralForms;
using kiv::rules::PluralForms;

namespace {

long long Form(const char* expression, unsigned long n)
{
    long long form = -99;
    EXPECT_TRUE(EvaluatePlural(expression, n, form)) << expression;
    return form;
}

PluralForms Forms(const char* field)
{
    PluralForms forms;
    std::string problem;
    EXPECT_TRUE(ParsePluralForms(std::string("Plural-Forms: ") + field + "\n", forms, problem)) << problem;
    return forms;
}

}  // namespace

TEST(PoChecksFormat, ArgumentsAreNumberedInOrderWithTheirTypes)
{
    std::vector<FormatArgument> arguments;
    ASSERT_TRUE(ParseCFormat("%d of %5.2f, %s %lu %*d %% done", arguments));
    EXPECT_EQ((std::vector<FormatArgument>{
                  {1, "int"}, {2, "double"}, {3, "char*"}, {4, "unsigned long int"}, {5, "int"}, {6, "int"}}),
              arguments);
}

TEST(PoChecksFormat, NumberedArgumentsMayComeInAnyOrder)
{
    std::vector<FormatArgument> arguments;
    ASSERT_TRUE(ParseCFormat("%2$s %1$d", arguments));
    EXPECT_EQ((std::vector<FormatArgument>{{1, "int"}, {2, "char*"}}), arguments);
    EXPECT_EQ("", CompareCFormat("%d files in %s", "%2$s: %1$d Dateien"));
}

TEST(PoChecksFormat, InvalidDirectivesAndMixedNumberingAreRefused)
{
    std::vector<FormatArgument> arguments;
    std::string problem;
    EXPECT_FALSE(ParseCFormat("50 %", arguments, &problem));
    EXPECT_FALSE(ParseCFormat("%y", arguments, &problem));
    EXPECT_FALSE(ParseCFormat("%1$d %s", arguments, &problem));
    EXPECT_EQ("numbered and unnumbered directives are mixed", problem);
    EXPECT_FALSE(ParseCFormat("%1$d %1$s", arguments, &problem));
}

TEST(PoChecksFormat, TranslationMustTakeTheSameArgumentsOfTheSameTypes)
{
    EXPECT_EQ("", CompareCFormat("%d files", "%5d Dateien"));
    EXPECT_EQ("argument 1 is int in the text and char* in the translation", CompareCFormat("%d files", "%s Dateien"));
    EXPECT_EQ("the translation takes 0 arguments, its text 1", CompareCFormat("%d files", "Dateien"));
    EXPECT_EQ("the translation takes argument 2, its text does not", CompareCFormat("%d files", "%d %d Dateien"));
    EXPECT_NE("", CompareCFormat("%d files", "%d Dateien 100%"));
    EXPECT_EQ("", CompareCFormat("%d files", "Eine Datei", true));
    EXPECT_EQ("", CompareCFormat("50 %", "%s"));  // a text that is no format holds nothing to
}

TEST(PoChecksPlural, ExpressionsAreEvaluatedAsC)
{
    EXPECT_EQ(0, Form("n != 1", 1));
    EXPECT_EQ(1, Form("(n != 1)", 2));
    const char* slavic = "n%10==1 && n%100!=11 ? 0 : n%10>=2 && n%10<=4 && (n%100<10 || n%100>=20) ? 1 : 2";
    EXPECT_EQ(0, Form(slavic, 21));
    EXPECT_EQ(1, Form(slavic, 23));
    EXPECT_EQ(2, Form(slavic, 12));
    EXPECT_EQ(2, Form(slavic, 5));
    EXPECT_EQ(0, Form("0", 7));
    EXPECT_EQ(1, Form("!(n == 1)", 0));
    EXPECT_EQ(3, Form("n==1 ? 0 : n==2 ? 1 : n<7 ? 2 : 3", 9));
}

TEST(PoChecksPlural, WhatIsNoExpressionIsRefused)
{
    long long form = 0;
    for (const char* bad : {"", "(n != 1", "n !=", "x", "n ? 1", "1 2", "n = 1"})
        EXPECT_FALSE(EvaluatePlural(bad, 1, form)) << bad;
    EXPECT_FALSE(EvaluatePlural("5 / n", 0, form));
    EXPECT_TRUE(EvaluatePlural("n == 0 ? 0 : 5 / n", 0, form));  // the branch not taken does not divide
    std::string deep(5000, '(');
    EXPECT_FALSE(EvaluatePlural(deep + "n" + std::string(5000, ')'), 1, form));
}

TEST(PoChecksPlural, HeaderFieldGivesCountAndExpression)
{
    PluralForms forms = Forms("nplurals=3; plural=n==1 ? 0 : n==2 ? 1 : 2;");
    EXPECT_EQ(3u, forms.count);
    EXPECT_EQ("n==1 ? 0 : n==2 ? 1 : 2", forms.expression);
    std::string problem;
    EXPECT_FALSE(ParsePluralForms("Language: de\n", forms, problem));
    EXPECT_NE(std::string::npos, problem.find("lacks"));
    EXPECT_FALSE(ParsePluralForms("Plural-Forms: nplurals=2; plural=(n != 1;\n", forms, problem));
    EXPECT_NE(std::string::npos, problem.find("invalid"));
    EXPECT_FALSE(ParsePluralForms("Plural-Forms: nplurals=INTEGER; plural=EXPRESSION;\n", forms, problem));
}

TEST(PoChecksPlural, RangeIsCheckedAgainstTheNumberOfForms)
{
    EXPECT_EQ("", CheckPluralRange(Forms("nplurals=2; plural=(n != 1);")));
    EXPECT_EQ("nplurals = 2 but the plural expression can produce values as large as 2",
              CheckPluralRange(Forms("nplurals=2; plural=n%3;")));
    EXPECT_EQ("the plural expression can produce negative values", CheckPluralRange(Forms("nplurals=2; plural=n-1;")));
    EXPECT_NE("", CheckPluralRange(Forms("nplurals=2; plural=5/n;")));
}

TEST(PoChecksPlural, FormOfOneNumberIsKnown)
{
    EXPECT_EQ((std::vector<bool>{true, false}), FormsOfOneNumber(Forms("nplurals=2; plural=(n != 1);")));
    EXPECT_EQ((std::vector<bool>{false, false, false}),
              FormsOfOneNumber(Forms("nplurals=3; plural=n%10==1 && n%100!=11 ? 0 : n%10>=2 && n%10<=4 && "
                                     "(n%100<10 || n%100>=20) ? 1 : 2;")));
}
