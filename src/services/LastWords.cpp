#include "services/LastWords.h"

#include "base/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <cxxabi.h>
#include <exception>
#include <fcntl.h>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <typeinfo>
#include <unistd.h>
#include <utility>

namespace loom
{

namespace
{

constexpr std::string_view exceptionMark = "uncaught exception ";

struct Signal {
    int number;
    std::string_view words;
};
constexpr std::array endings{
    Signal{SIGABRT, "ended by SIGABRT"}, Signal{SIGBUS, "ended by SIGBUS"},   Signal{SIGFPE, "ended by SIGFPE"},
    Signal{SIGILL, "ended by SIGILL"},   Signal{SIGSEGV, "ended by SIGSEGV"}, Signal{SIGSYS, "ended by SIGSYS"},
};

// What handlers of the C library and of Qt can reach: they are functions that nobody can hand anything to.
std::atomic<int> openFile{-1};
std::atomic<pid_t> owner{0};
std::atomic_flag hasSpoken;
std::terminate_handler formerTerminate = nullptr;
std::atomic<QtMessageHandler> formerMessages = nullptr;
std::array<struct sigaction, endings.size()> formerActions{};

/// Only the first to speak is heard: what comes after it follows from it. Calls nothing that a signal may not call.
/// Processes that were split off and run nothing else have the file as well, and leave it alone.
void speak(std::initializer_list<std::string_view> words) noexcept
{
    const int file = openFile.load();
    if (file < 0 || getpid() != owner.load() || hasSpoken.test_and_set())
        return;
    std::size_t room = LastWords::maximumBytes;
    for (std::string_view rest : words) {
        rest = rest.substr(0, room);
        room -= rest.size();
        while (!rest.empty()) {
            const ssize_t written = ::write(file, rest.data(), rest.size());
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                return;
            rest.remove_prefix(static_cast<std::size_t>(written));
        }
    }
}

[[noreturn]] void onTerminate()
{
    if (const std::type_info* const type = abi::__cxa_current_exception_type()) {
        try {
            throw;
        } catch (const std::exception& exception) {
            const char* const what = exception.what();
            speak({exceptionMark, type->name(), "\n", {what, strnlen(what, LastWords::maximumBytes)}});
        } catch (...) {
            speak({exceptionMark, type->name(), "\n"});
        }
    } else {
        speak({"ended by std::terminate"});
    }
    if (formerTerminate)
        formerTerminate();
    std::abort();
}

void onMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtFatalMsg) {
        const QByteArray words = message.left(LastWords::maximumBytes).toUtf8();
        speak({std::string_view(words.constData(), static_cast<std::size_t>(words.size()))});
    }
    if (const QtMessageHandler former = formerMessages)
        former(type, context, message);
}

void onSignal(int number, siginfo_t* info, void*)
{
    const int error = errno;
    for (std::size_t i = 0; i < endings.size(); ++i) {
        if (endings.at(i).number == number) {
            speak({endings.at(i).words});
            sigaction(number, &formerActions.at(i), nullptr);
        }
    }
    // A fault happens again on the way back; what was sent has to be sent again.
    if (info->si_code <= 0)
        raise(number);
    errno = error;
}

/// A stack that has overflown cannot be spoken on.
void reserveSignalStack()
{
    static std::array<char, 65536> room;
    stack_t stack{};
    if (sigaltstack(nullptr, &stack) == 0 && (stack.ss_flags & SS_DISABLE) != 0) {
        stack = {.ss_sp = room.data(), .ss_flags = 0, .ss_size = room.size()};
        sigaltstack(&stack, nullptr);
    }
}

void setTime(int file, const QDateTime& now)
{
    const qint64 milliseconds = now.toMSecsSinceEpoch();
    const timespec time{.tv_sec = milliseconds / 1000, .tv_nsec = milliseconds % 1000 * 1'000'000};
    const std::array both{time, time};
    futimens(file, both.data());
}

/// With the type's name as it is written in code.
QString readable(const QByteArray& words)
{
    const QLatin1String mark(exceptionMark.data(), exceptionMark.size());
    if (!words.startsWith(QByteArrayView(mark.data(), mark.size())))
        return QString::fromUtf8(words);
    const qsizetype end = words.indexOf('\n');
    const QByteArray type = words.mid(mark.size(), end < 0 ? -1 : end - mark.size());
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(type.constData(), nullptr, nullptr, &status), &std::free);
    const QString what = end < 0 ? QString() : QString::fromUtf8(words.mid(end + 1));
    return mark + QString::fromUtf8(status == 0 ? name.get() : type.constData()) +
           (what.isEmpty() ? QString() : QStringLiteral(": ") + what);
}

} // namespace

LastWords::LastWords(QString folder)
    : m_path(std::move(folder))
{
    m_path += QStringLiteral("/lst_last_words");
}

LastWords::~LastWords()
{
    close();
}

LastRun LastWords::begin(const QDateTime& now)
{
    const QString folder = QFileInfo(m_path).path();
    if (!QFileInfo(folder).isDir() && QDir().mkpath(folder))
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QByteArray path = QFile::encodeName(m_path);
    struct stat facts{};
    const bool isKnown = ::lstat(path.constData(), &facts) == 0;
    const int file =
        ::open(path.constData(), O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, S_IRUSR | S_IWUSR);
    if (file < 0 || (isKnown && !S_ISREG(facts.st_mode))) {
        qCWarning(logStorage) << "cannot open" << m_path;
        if (file >= 0)
            ::close(file);
        return {};
    }
    m_file = file;
    LastRun last;
    if (isKnown) {
        QByteArray words(maximumBytes, '\0');
        words.truncate(std::max<ssize_t>(0, ::pread(file, words.data(), static_cast<std::size_t>(words.size()), 0)));
        // What was cut may no longer look like the secret it is.
        if (words.size() == maximumBytes) {
            while (!words.isEmpty() && !QChar::isSpace(static_cast<uchar>(words.back())))
                words.chop(1);
        }
        last.words = readable(words);
        last.aliveLast = QDateTime::fromMSecsSinceEpoch(
            static_cast<qint64>(facts.st_mtim.tv_sec) * 1000 + facts.st_mtim.tv_nsec / 1'000'000, Qt::UTC);
    }
    if (::ftruncate(file, 0) != 0 || ::fchmod(file, S_IRUSR | S_IWUSR) != 0)
        qCWarning(logStorage) << "cannot write" << m_path;
    setTime(file, now);
    return last;
}

void LastWords::listen()
{
    if (m_file < 0 || m_listens)
        return;
    m_listens = true;
    hasSpoken.clear();
    owner = getpid();
    openFile = m_file;
    reserveSignalStack();
    formerTerminate = std::set_terminate(onTerminate);
    formerMessages = qInstallMessageHandler(onMessage);
    struct sigaction action{};
    action.sa_sigaction = onSignal;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < endings.size(); ++i)
        sigaction(endings.at(i).number, &action, &formerActions.at(i));
}

void LastWords::touch(const QDateTime& now) const
{
    if (m_file >= 0)
        setTime(m_file, now);
}

void LastWords::end()
{
    close();
    QFile::remove(m_path);
}

void LastWords::close()
{
    if (std::exchange(m_listens, false)) {
        for (std::size_t i = 0; i < endings.size(); ++i)
            sigaction(endings.at(i).number, &formerActions.at(i), nullptr);
        qInstallMessageHandler(formerMessages);
        std::set_terminate(formerTerminate);
        openFile = -1;
    }
    if (m_file >= 0)
        ::close(std::exchange(m_file, -1));
}

} // namespace loom
