#pragma once

#include <QDateTime>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace loom
{

class JsonReader;

/// What the application asks the helper program to do once it has ended, in "install-job.json" of the working folder.
struct InstallJob {
    static constexpr const char* fileName = "install-job.json";

    QString version;
    qint64 build = 0;
    bool relaunch = false;
    QDateTime createdAt;
    qint64 processIdentifier = 0; ///< the helper waits until this process has ended
    QString image;                ///< the verified image
    QString sha256;               ///< of the image, in small hexadecimal letters
    QString folder;               ///< the application's, to be replaced

    bool operator==(const InstallJob&) const = default;
};

/// How the helper fared, in "install-result.json" beside the job.
struct InstallResult {
    static constexpr const char* fileName = "install-result.json";

    enum class Code {
        Installed,    ///< "installed"
        Busy,         ///< "busy": the application, or another instance of it, did not end
        NotWritable,  ///< "not-writable": the folder, or the one it lies in
        NoSpace,      ///< "no-space"
        BadImage,     ///< "bad-image": not the one that was verified, or not a release that may be unpacked
        DoesNotStart, ///< "does-not-start": the new version says nothing, or was reverted because it died twice
        Failed,       ///< "failed": anything else, and every code that is not known
    };

    Code code = Code::Failed;
    QString path; ///< of the application's folder
    bool relaunch = false;

    bool operator==(const InstallResult&) const = default;
};

/// A release that was installed and has yet to prove that it runs, in "install-trial.json" beside the job. Written
/// before the folders are exchanged, so that whoever finds it knows what lies where.
struct InstallTrial {
    static constexpr const char* fileName = "install-trial.json";

    QString version; ///< of the new release
    qint64 build = 0;
    QString folder;   ///< where the application lies
    QString previous; ///< where the release before lies, once the folders are exchanged; beside `folder`
    int starts = 0;   ///< that have begun and not been confirmed

    bool operator==(const InstallTrial&) const = default;
};

[[nodiscard]] QJsonObject toJson(const InstallJob& job);
[[nodiscard]] InstallJob decodeInstallJob(const JsonReader& json);
[[nodiscard]] QJsonObject toJson(const InstallResult& result);
[[nodiscard]] InstallResult decodeInstallResult(const JsonReader& json);
[[nodiscard]] QJsonObject toJson(const InstallTrial& trial);
[[nodiscard]] InstallTrial decodeInstallTrial(const JsonReader& json);

// The three files, each small, private and this user's own. Blocks; any thread.

/// Nothing when the file is missing, truncated, too large, somebody else's or not a plain file.
[[nodiscard]] std::optional<InstallJob> readInstallJob(const QString& workingFolder);
[[nodiscard]] std::optional<InstallResult> readInstallResult(const QString& workingFolder);
[[nodiscard]] std::optional<InstallTrial> readInstallTrial(const QString& workingFolder);

/// All of the file or nothing of it, on the disk when this returns true.
[[nodiscard]] bool write(const InstallJob& job, const QString& workingFolder);
[[nodiscard]] bool write(const InstallResult& result, const QString& workingFolder);
[[nodiscard]] bool write(const InstallTrial& trial, const QString& workingFolder);

/// True when there is no trial file on the disk. Only for who holds the lock of InstallLock::Work::Trial, as is writing
/// it.
[[nodiscard]] bool removeInstallTrial(const QString& workingFolder);

} // namespace loom
