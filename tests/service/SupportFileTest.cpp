#include "support/SupportFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace loom
{

namespace
{

class SupportFileTest : public testing::Test
{
protected:
    QString write(const QString& name, const QByteArray& bytes)
    {
        QFile file(directory.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    std::optional<SupportFileProblem> problem(const QString& path)
    {
        const auto read = readSupportFile(path);
        return read ? std::nullopt : std::optional(read.error());
    }

    QTemporaryDir directory;
    const QByteArray png = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452");
};

TEST_F(SupportFileTest, TheContentsDecideWhatAFileIsWhateverItIsCalled)
{
    const auto typeOf = [this](const QString& name, const QByteArray& bytes) {
        return readSupportFile(write(name, bytes))->mimeType;
    };
    EXPECT_EQ(typeOf(QStringLiteral("bill.txt"), "%PDF-1.7\n"), QLatin1String("application/pdf"));
    EXPECT_EQ(typeOf(QStringLiteral("a.pdf"), png), QLatin1String("image/png"));
    EXPECT_EQ(typeOf(QStringLiteral("b"), QByteArray::fromHex("ffd8ffe000104a46494600")), QLatin1String("image/jpeg"));
    EXPECT_EQ(typeOf(QStringLiteral("c"), "RIFF\x10\x01\x01\x01WEBPVP8 "), QLatin1String("image/webp"));
    for (const char* const bytes :
         {"#!/bin/sh\nrm -r /", "<svg xmlns='http://www.w3.org/2000/svg'/>", "MZ\x90", "PK\x03\x04"})
        EXPECT_EQ(problem(write(QStringLiteral("picture.png"), bytes)), SupportFileProblem::WrongType) << bytes;
}

TEST_F(SupportFileTest, WhatCannotBeSentSaysWhy)
{
    EXPECT_EQ(problem(directory.filePath(QStringLiteral("none.png"))), SupportFileProblem::Missing);
    EXPECT_EQ(problem(directory.path()), SupportFileProblem::Missing);
    EXPECT_EQ(problem(QString()), SupportFileProblem::Missing);
    EXPECT_EQ(problem(write(QStringLiteral("empty.png"), {})), SupportFileProblem::Empty);
    const QString pipe = directory.filePath(QStringLiteral("pipe.png"));
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(problem(pipe), SupportFileProblem::Missing) << "it would never come to its end";
    EXPECT_EQ(problem(write(QStringLiteral("most.png"), png + QByteArray(largestSupportFile - png.size(), 'x'))),
              std::nullopt);
    EXPECT_EQ(problem(write(QStringLiteral("more.png"), png + QByteArray(largestSupportFile, 'x'))),
              SupportFileProblem::TooLarge);
}

} // namespace

} // namespace loom
