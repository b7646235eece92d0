#pragma once

#include "updater/Installation.h"

#include <QMap>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/types.h>

namespace loom
{

void put(const QString& path, const QByteArray& content, mode_t mode = 0644);
[[nodiscard]] QByteArray contentOf(const QString& path);

/// Everything in a folder, by its path: of files the content, of links where they lead; folders end in "/".
[[nodiscard]] QMap<QString, QByteArray> treeOf(const QString& folder);

/// Makes a squashfs image of a folder, zstd unless the arguments say otherwise.
void makeImage(const QString& folder, const QString& image, const QStringList& arguments = {});

/// The number of a process that has ended.
[[nodiscard]] pid_t endedProcess();

/// A home with a working folder and version 1.0 of the application, a script, in "apps/loomstreet".
class ReleasesTest : public testing::Test
{
protected:
    ReleasesTest();

    [[nodiscard]] QString path(const QString& inHome) const { return home.path() + QLatin1Char('/') + inHome; }
    /// Everything that lies beside the application, by name.
    [[nodiscard]] QStringList apps() const;

    /// A release whose program says its version, and tells the test's pipe when it is started.
    void makeRelease(const QString& where, const QString& version, int build, const QByteArray& answer = {}) const;
    /// An image of such a release, and a job to install it that is written, too.
    InstallJob jobFor(const QString& version, int build = 2, const QByteArray& answer = {});
    /// A job for an image that is there.
    [[nodiscard]] InstallJob jobWith(const QString& image, const QString& version, int build) const;

    [[nodiscard]] InstallResult::Code installed(const InstallJob& job, const InstallSettings& settings = {}) const;
    /// That the old version lies there whole, and nothing else.
    void expectUntouched() const;

    QTemporaryDir home;
    QString working = path(QStringLiteral("updates"));
    QString folder = path(QStringLiteral("apps/loomstreet"));
    QMap<QString, QByteArray> oldTree;
};

} // namespace loom
