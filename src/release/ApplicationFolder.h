#pragma once

#include <QString>

#include <optional>

namespace loom
{

/// A release as it lies unpacked: a folder that works wherever it is put, with bin/loomstreet,
/// libexec/loomstreet-updater and, at its root, release.json, which says which release it is: {"version": text,
/// "build": number}. A folder without that file, such as a distribution's package or a build folder, is no release and
/// is never replaced.
struct ApplicationFolder {
    QString path; ///< absolute, without links, without "/" at its end
    QString version;
    qint64 build = 0;

    bool operator==(const ApplicationFolder&) const = default;

    [[nodiscard]] QString executable() const { return path + QStringLiteral("/bin/loomstreet"); }
    [[nodiscard]] QString helper() const { return path + QStringLiteral("/libexec/loomstreet-updater"); }

    /// Nothing where the folder is no release.
    [[nodiscard]] static std::optional<ApplicationFolder> read(const QString& path);
    /// The folder that a program in its bin/ belongs to. `program` may be a link.
    [[nodiscard]] static std::optional<ApplicationFolder> ofProgram(const QString& program);
};

} // namespace loom
