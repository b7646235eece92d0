#include "catalog/DescriptionSections.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace loom
{

namespace
{

struct Row {
    const char* html;
    const char* expected;
};

/// Sections as text: "# title" or, when it can be collapsed, "+ title", and one line to the paragraph.
std::string described(const QString& html)
{
    QStringList lines;
    for (const DescriptionSection& section : descriptionSections(html)) {
        if (!section.title.isEmpty())
            lines += (section.isCollapsible ? QStringLiteral("+ ") : QStringLiteral("# ")) + section.title;
        else
            lines += QStringLiteral("#");
        lines += section.paragraphs;
    }
    return lines.join(u'\n').toStdString();
}

void expectAll(std::initializer_list<Row> rows)
{
    for (const Row& row : rows)
        EXPECT_EQ(described(QString::fromUtf8(row.html)), row.expected) << row.html;
}

} // namespace

TEST(DescriptionSectionsTest, HeadingsAndDetailsDivideADescription)
{
    expectAll({
        {"<p>Cut on the bias.</p><h3>Fit</h3><p>Close.</p><p>Size down.</p><h3>Care</h3><p>By hand.</p>",
         "#\nCut on the bias.\n# Fit\nClose.\nSize down.\n# Care\nBy hand."},
        {"<DETAILS open>\n<SUMMARY class=\"x\">Fabric\n&amp; care</SUMMARY>\n<P>Silk.</P>Wool.</DETAILS>",
         "+ Fabric & care\nSilk.\nWool."},
        {"<h3>Fit</h3><p>Close.</p><details><summary>Care</summary>By hand.</details><p>After.</p>",
         "# Fit\nClose.\n+ Care\nBy hand.\n#\nAfter."},
        {"<details><summary><h3>Care</h3></summary><h3>Silk</h3><p>By hand.</p></details>", "+ Care\nSilk\nBy hand."},
        {"<details><summary>Nothing inside</summary></details>", "# Nothing inside"},
        {"<h3>&nbsp;</h3><p>Under an empty heading.</p>", "#\nUnder an empty heading."},
        {"<h2>Not a section</h2><summary>Nor this</summary><h30>or that</h30>", "#\nNot a section\nNor this\nor that"},
        {"", ""},
    });
}

TEST(DescriptionSectionsTest, TextOutsideParagraphsIsKeptLineByLine)
{
    expectAll({
        {"Bare <b>bold</b>, <i>it</i>alic", "#\nBare bold, italic"},
        {"<h3>Details</h3><ul><li>Silk</li><li><p>Lined</p><p>in silk</p></li><li></li></ul>After",
         "# Details\n• Silk\n• Lined\nin silk\nAfter"},
        {"<table><tr><th>Shell</th><td>Silk</td></tr><tr><td>Lining</td></tr></table>", "#\nShell Silk\nLining"},
        {"No markup.\r\n\r\nTwo lines, 3 < 4 & 5 > 2.", "#\nNo markup.\nTwo lines, 3 < 4 & 5 > 2."},
    });
}

TEST(DescriptionSectionsTest, FinalSaleIsLeftToTheServiceClass)
{
    expectAll({
        {"<p><b>Final Sale:</b> no returns.</p><p>Not a final sale: this.</p>",
         "#\nno returns.\nNot a final sale: this."},
        {"<details><summary>Care</summary>\n FINAL SALE: \nBy hand.</details>", "+ Care\nBy hand."},
    });
}

TEST(DescriptionSectionsTest, ReferencesAreDecodedOnceAndAsText)
{
    expectAll({
        {"Cr&ecirc;pe &amp; wool&nbsp;&#8211;&#x2014; &euro;5 &frac12; &yuml;", "#\nCrêpe & wool –— €5 ½ ÿ"},
        {"&lt;script&gt; &amp;lt;b&amp;gt;", "#\n<script> &lt;b&gt;"},
        {"&#0; &#xD800; &#x110000; &#99999999999;", "#\n� � � �"},
        {"&; &# ; &#x; &#-5; &#5 ; &#xg; &#x0x41; &unknown; A&B; &amp",
         "#\n&; &# ; &#x; &#-5; &#5 ; &#xg; &#x0x41; &unknown; A&B; &amp"},
    });
}

TEST(DescriptionSectionsTest, WhatIsNoTextOfThePageNeverShows)
{
    expectAll({
        {"a<script>evil('<p>')</script>b<STYLE type=x>p{}</STYLE >c<!-- <p>no</p> -->d<noscript>n</noscript>e",
         "#\nabcde"},
        {"a<script>x</scripture>y</script\n>b", "#\nab"},
        {"a<!-->b<!---->c<!doctype x>d<?xml y?>e</ p>f", "#\nabcdef"},
        {"a<p title=\"1 > 0\" data-x='\">'>b</p>", "#\na\nb"},
        {"a<p title=\"never closed>b</p>c", "#\na\nb\nc"},
        {"a<p it's>b</p><i it's>c", "#\na\nb\nc"},
        {"kept<script>lost", "#\nkept"},
        {"kept<p class=lost", "#\nkept"},
        {"a\u202e\u2066b\u200fc\ufeff&#8238;&#7;d\u2028e", "#\nab\u200fcd e"},
    });
}

TEST(DescriptionSectionsTest, TagsThatAreNotClosedLoseNoText)
{
    expectAll({
        {"<p>One<p>Two</p>", "#\nOne\nTwo"},
        {"<h3>Fit<p>Close.</p><h3>Care</h3>By hand.", "# Fit\nClose.\n# Care\nBy hand."},
        {"<details><summary>Care</summary>By hand.<h3>Fit</h3>Close.", "#\nCare\nBy hand.\n# Fit\nClose."},
        {"<details><summary>Care<p>By hand.</p></details>", "+ Care\nBy hand."},
        {"<details><summary>A</summary>b<details><summary>C</summary>d</details>e</details>", "+ A\nb\nC\nd\n#\ne"},
        {"<h3>Fit</h3>Close.</details>Snug.", "# Fit\nClose.\nSnug."},
    });
}

TEST(DescriptionSectionsTest, HostileInputTakesNoTime)
{
    constexpr qsizetype length = 1'000'000;
    QElapsedTimer timer;
    timer.start();
    const QString pieces =
        QStringLiteral("<p|<p |<p>|<|</|<!--|<!|&|&#|<details|<details>|<h3>|<a b=\"|<a b='>'>\"|<a b=\">\"|"
                       "<script>|<script></script|<li>|final sale:|<details><summary>|a<h3>b</h3>|\n|\u00a0");
    for (const QString& piece : pieces.split(u'|')) {
        const QList<DescriptionSection> sections = descriptionSections(piece.repeated(length / piece.size()));
        qsizetype paragraphs = 0;
        for (const DescriptionSection& section : sections)
            paragraphs += 1 + section.paragraphs.size();
        EXPECT_LE(paragraphs, 1001) << piece.toStdString();
    }
    // A second for each would be far too much; the sanitizers and a busy machine are allowed for.
    EXPECT_LT(timer.elapsed(), 20'000);
}

} // namespace loom
