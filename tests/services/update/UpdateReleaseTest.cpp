#include "services/update/UpdateRelease.h"

#include "services/update/ImageDownload.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace loom;

namespace
{

/// A release as it may be, after `change`: of two equal keys the first counts.
QByteArray answer(const QByteArray& change)
{
    return R"({"windows": 4, "macos": {)" + change + (change.isEmpty() ? "" : ", ") +
           R"("min": "1.0", "latest": "1.4.2", "build": 312, "url": "https://loom.example/l/312.squashfs?v=1",
              "sha256": "AB12", "size": 1048576, "notes": {"en": "Faster.", "pl": "Szybciej."}, "rollout": 25}})";
}

std::optional<UpdateRelease> decoded(const QByteArray& body)
{
    const auto release = decodeUpdateRelease(body);
    return release ? *release : std::nullopt;
}

const UpdateRelease whole{
    .min = QStringLiteral("1.0"),
    .latest = QStringLiteral("1.4.2"),
    .build = 312,
    .url = QUrl(QStringLiteral("https://loom.example/l/312.squashfs?v=1")),
    .sha256 = QStringLiteral("AB12"),
    .size = 1048576,
    .notes = {{QStringLiteral("en"), QStringLiteral("Faster.")}, {QStringLiteral("pl"), QStringLiteral("Szybciej.")}},
    .rollout = 25};

TEST(UpdateReleaseTest, ReadsWhatIsSaidOfARelease)
{
    const auto release = decoded(answer({}));
    ASSERT_TRUE(release);
    EXPECT_EQ(*release, whole);
    EXPECT_EQ(release->key(), QStringLiteral("1.4.2-312"));
    EXPECT_EQ(release->signatureUrl(), QUrl(QStringLiteral("https://loom.example/l/312.squashfs.minisig?v=1")));

    const auto least = decoded(R"({"macos": {"latest": "2", "url": "https://loom.example/a%2Fb%20c"}})");
    ASSERT_TRUE(least);
    EXPECT_EQ(*least, (UpdateRelease{.latest = QStringLiteral("2"), .url = least->url}));
    EXPECT_EQ(least->key(), QStringLiteral("2-0"));
    EXPECT_EQ(least->signatureUrl().toEncoded(), "https://loom.example/a%2Fb%20c.minisig");
    EXPECT_EQ(least->notesIn(QStringLiteral("en")), QString());
}

TEST(UpdateReleaseTest, WithoutVersionAddressOrASizeThatCanBeThereIsNoRelease)
{
    for (const QByteArray& body : {
             QByteArray(),
             QByteArray("null"),
             QByteArray("[]"),
             QByteArray(R"({"macos": []})"),
             QByteArray(R"({"macos": {}})"),
             answer(R"("latest": null)"),
             answer(R"("latest": 1.4)"),
             answer(R"("latest": "")"),
             answer(R"("latest": "1.x")"),
             answer(R"("latest": "../1")"),
             answer(R"("latest": "1)" + QByteArray(300, '0') + '"'),
             answer(R"("url": null)"),
             answer(R"("url": ["https://loom.example/a"])"),
             answer(R"("url": "http://loom.example/a")"),
             answer(R"("url": "file:///etc/passwd")"),
             answer(R"("url": "https:///a")"),
             answer(R"("url": "/a.squashfs")"),
             answer(R"("url": "https://loom.example@evil.example/a")"),
             answer(R"("url": "https://loom.example/a b")"),
             answer(R"("url": "https://loom.example/")"),
             answer(R"("url": "https://loom.example")"),
             answer(R"("url": "https://loom.example/)" + QByteArray(3000, 'a') + '"'),
             answer(R"("size": 0)"),
             answer(R"("size": -1048576)"),
             answer(R"("size": 1.5)"),
             answer(R"("size": 18446744073709551615)"),
             answer(R"("size": )" + QByteArray::number(maximumImageBytes + 1)),
         })
        EXPECT_FALSE(decodeUpdateRelease(body)) << body.left(200).constData();
    for (const QByteArray& body : {QByteArray("{}"), QByteArray(R"({"macos": null})")}) {
        const auto none = decodeUpdateRelease(body);
        EXPECT_TRUE(none && !*none) << body.constData();
    }
}

TEST(UpdateReleaseTest, WhatIsOptionalAndOfAnotherTypeCountsAsAbsent)
{
    struct Row {
        const char* change;
        std::function<void(UpdateRelease&)> expected;
    };
    for (const Row& row : {
             Row{R"("min": 1)",
                 [](UpdateRelease& r) {
                     r.min.reset();
                 }},
             Row{R"("min": "one")",
                 [](UpdateRelease& r) {
                     r.min.reset();
                 }},
             Row{R"("build": "312")",
                 [](UpdateRelease& r) {
                     r.build.reset();
                 }},
             Row{R"("build": -312)",
                 [](UpdateRelease& r) {
                     r.build.reset();
                 }},
             Row{R"("build": 1e300)",
                 [](UpdateRelease& r) {
                     r.build.reset();
                 }},
             Row{R"("build": 3.12e2)",
                 [](UpdateRelease&) {
                 }},
             Row{R"("sha256": {})",
                 [](UpdateRelease& r) {
                     r.sha256.reset();
                 }},
             Row{R"("size": "1048576")",
                 [](UpdateRelease& r) {
                     r.size.reset();
                 }},
             Row{R"("size": 1)",
                 [](UpdateRelease& r) {
                     r.size = 1;
                 }},
             Row{R"("notes": ["a"])",
                 [](UpdateRelease& r) {
                     r.notes.clear();
                 }},
             Row{R"("notes": {"en": 1, "pl": null, "de": [], "": "a", "e/n": "a", "it": "\u202e \u0007"})",
                 [](UpdateRelease& r) {
                     r.notes.clear();
                 }},
             Row{R"("rollout": null)",
                 [](UpdateRelease& r) {
                     r.rollout.reset();
                 }},
             Row{R"("rollout": -5)",
                 [](UpdateRelease& r) {
                     r.rollout = -5;
                 }},
             // A limit stays one, however it is written.
             Row{R"("rollout": "25")",
                 [](UpdateRelease& r) {
                     r.rollout = 0;
                 }},
             Row{R"("rollout": 12.9)",
                 [](UpdateRelease& r) {
                     r.rollout = 12;
                 }},
             Row{R"("rollout": -1e300)",
                 [](UpdateRelease& r) {
                     r.rollout = -1;
                 }},
             Row{R"("rollout": 1e300)",
                 [](UpdateRelease& r) {
                     r.rollout = 100;
                 }},
             Row{R"("url": "https://loom.example/l/312.squashfs?v=1#top")",
                 [](UpdateRelease&) {
                 }},
         }) {
        UpdateRelease expected = whole;
        row.expected(expected);
        const auto release = decoded(answer(row.change));
        ASSERT_TRUE(release) << row.change;
        EXPECT_EQ(*release, expected) << row.change;
    }
}

TEST(UpdateReleaseTest, NotesAreCleanBoundedAndInTheLanguageAskedFor)
{
    QByteArray many = R"("notes": {"en-GB": "One.\r\n\u202eTwo\u0000 <b>", "x": ")" + QByteArray(100'000, 'x') + '"';
    for (int i = 0; i < 1000; ++i)
        many += ", \"q" + QByteArray::number(i) + "\": \"note\"";
    const auto release = decoded(answer(many + '}'));
    ASSERT_TRUE(release);
    EXPECT_EQ(release->notes.value(QStringLiteral("en-GB")), QStringLiteral("One.\nTwo <b>"));
    EXPECT_LE(release->notes.value(QStringLiteral("x")).size(), 4000);
    EXPECT_LE(release->notes.size(), 100);

    struct Row {
        QStringList codes;
        const char* asked;
        const char* found;
    };
    for (const Row& row : {
             Row{{"de", "en", "pl"}, "pl", "pl"},
             Row{{"de", "en", "PL"}, "pl", "PL"},
             Row{{"en", "pt-BR"}, "pt", "pt-BR"},
             Row{{"en", "zh-Hans", "zh-Hant"}, "zh-Hant", "zh-Hant"},
             Row{{"en", "zh"}, "zh-Hant", "zh"},
             Row{{"de", "en_GB", "fil"}, "fi", "en_GB"},
             Row{{"de", "fr"}, "fi", "de"},
             Row{{"de", "en"}, "", "en"},
         }) {
        UpdateRelease one;
        for (const QString& code : row.codes)
            one.notes.insert(code, code);
        EXPECT_EQ(one.notesIn(QString::fromLatin1(row.asked)), QString::fromLatin1(row.found)) << row.asked;
    }
}

} // namespace
