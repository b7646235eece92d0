#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

#include <gtest/gtest.h>

namespace loom
{

inline void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

/// A folder that is a release, with a program that can be executed.
inline void makeRelease(const QString& folder, const QString& version, qint64 build)
{
    ASSERT_TRUE(QDir().mkpath(folder + QStringLiteral("/bin")));
    writeFile(folder + QStringLiteral("/release.json"),
              QStringLiteral("{\"version\":\"%1\",\"build\":%2}").arg(version).arg(build).toUtf8());
    writeFile(folder + QStringLiteral("/bin/loomstreet"), "#!/bin/sh\n");
    QFile::setPermissions(folder + QStringLiteral("/bin/loomstreet"), QFile::ReadOwner | QFile::ExeOwner);
}

} // namespace loom
