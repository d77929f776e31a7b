// SPDX-License-Identifier: MIT
#include "process/Guardian.h"

#include <QFile>
#include <QProcessEnvironment>

#ifdef Q_OS_LINUX

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <sstream>
#include <string>
#include <string_view>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr auto markName = "KOVRA_WIZARD";
constexpr auto pollInterval = 20ms;
// What is told to end may tidy up; what starts anew meanwhile is killed as well.
constexpr auto grace = 500ms;
constexpr auto patience = 5s;
// Three paths and their ends.
constexpr std::size_t longestMessage = 3 * 4096 + 4;

enum Order : char { Watch = 'w', Forget = 'f', Dismiss = 'd', List = 'l' };

int channel = -1;

struct Watched
{
    std::string projectFile;
    std::string aside;
    std::string lock;
};

// The mark tells runs apart; a process id alone is used again.
std::string markValue(pid_t wizard)
{
    static const auto started = std::chrono::system_clock::now().time_since_epoch().count();
    return std::to_string(wizard) + '.' + std::to_string(started);
}

std::string contentsOf(const std::string& file)
{
    std::string contents;
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return contents;
    }
    std::array<char, 4096> part;
    for (ssize_t got = 0; (got = ::read(descriptor, part.data(), part.size())) > 0;) {
        contents.append(part.data(), std::size_t(got));
    }
    ::close(descriptor);
    return contents;
}

bool isMarked(const std::string& pid, const std::string& entry)
{
    // The environment's entries end with a null, the first has none before it.
    const std::string environment = std::string(1, '\0') + contentsOf("/proc/" + pid + "/environ");
    return environment.find(std::string(1, '\0') + entry + '\0') != std::string::npos;
}

std::vector<pid_t> marked(const std::string& entry)
{
    std::vector<pid_t> found;
    DIR* processes = ::opendir("/proc");
    while (const dirent* process = processes ? ::readdir(processes) : nullptr) {
        const std::string_view name = process->d_name;
        pid_t pid = 0;
        const bool isNumber = std::from_chars(name.data(), name.data() + name.size(), pid).ec == std::errc();
        if (isNumber && pid != ::getpid() && isMarked(std::string(name), entry)) {
            found.push_back(pid);
        }
    }
    if (processes) {
        ::closedir(processes);
    }
    return found;
}

void killMarked(const std::string& entry)
{
    const auto start = std::chrono::steady_clock::now();
    std::vector<pid_t> told;
    for (auto now = start; now < start + patience; now = std::chrono::steady_clock::now()) {
        const std::vector<pid_t> left = marked(entry);
        if (left.empty()) {
            return;
        }
        for (const pid_t process : left) {
            if (now >= start + grace) {
                ::kill(process, SIGKILL);
            } else if (std::ranges::find(told, process) == told.end()) {
                ::kill(process, SIGTERM);
                told.push_back(process);
            }
        }
        std::this_thread::sleep_for(pollInterval);
    }
}

void bringBack(const Watched& watched)
{
    if (watched.projectFile.empty()) {
        return;
    }
    if (watched.aside.empty() || ::access(watched.aside.c_str(), F_OK) != 0) {
        ::unlink(watched.projectFile.c_str());
    } else {
        ::rename(watched.aside.c_str(), watched.projectFile.c_str());
    }
    ::unlink(watched.lock.c_str());
}

// Only what is named as ours: the list lies where others write, too.
void removeListed(const std::string& list)
{
    const std::string folder = list.substr(0, list.rfind('/') + 1) + "KOVRA-";
    std::istringstream names(list.empty() ? std::string() : contentsOf(list));
    for (std::string name; std::getline(names, name);) {
        if (name.starts_with(folder) && name.find('/', folder.size()) == std::string::npos) {
            ::unlink(name.c_str());
        }
    }
    ::unlink(list.c_str());
}

Watched parse(std::string_view message)
{
    Watched watched;
    for (std::string* text : {&watched.projectFile, &watched.aside, &watched.lock}) {
        const std::size_t end = message.find('\0');
        *text = message.substr(0, end);
        message.remove_prefix(end == std::string_view::npos ? message.size() : end + 1);
    }
    return watched;
}

// Nothing of ours may keep a terminal, a pipe, a folder or a signal meant for the wizard.
void detach(int ourEnd)
{
    ::setsid();
    ::prctl(PR_SET_NAME, "kovra-guardian");
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE}) {
        std::signal(signal, SIG_IGN);
    }
    [[maybe_unused]] const int moved = ::chdir("/");
    const int null = ::open("/dev/null", O_RDWR);
    for (int standard = 0; standard <= STDERR_FILENO; ++standard) {
        ::dup2(null, standard);
    }
    if (ourEnd > STDERR_FILENO + 1) {
        ::close_range(STDERR_FILENO + 1, unsigned(ourEnd - 1), 0);
    }
    ::close_range(unsigned(ourEnd + 1), ~0U, 0);
}

[[noreturn]] void guard(int ourEnd, const std::string& entry)
{
    detach(ourEnd);
    Watched watched;
    std::string list;
    std::array<char, longestMessage> message;
    while (true) {
        const ssize_t size = ::recv(ourEnd, message.data(), message.size(), 0);
        if (size <= 0) {
            break;
        }
        if (message[0] == Dismiss) {
            ::_exit(0);
        }
        if (message[0] == List) {
            list.assign(message.data() + 1, std::size_t(size - 1));
            continue;
        }
        watched = message[0] == Watch ? parse({message.data() + 1, std::size_t(size - 1)}) : Watched();
    }
    killMarked(entry);
    bringBack(watched);
    removeListed(list);
    ::_exit(0);
}

void send(const QByteArray& message)
{
    if (channel >= 0) {
        [[maybe_unused]] const auto sent =
            ::send(channel, message.constData(), std::size_t(message.size()), MSG_NOSIGNAL);
    }
}

} // namespace

void Guardian::start()
{
    int ends[2] = {-1, -1};
    const std::string entry = std::string(markName) + '=' + markValue(::getpid());
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0) {
        return;
    }
    const pid_t guardian = ::fork();
    if (guardian == 0) {
        guard(ends[1], entry);
    }
    ::close(ends[1]);
    channel = ends[0];
    if (guardian < 0) {
        ::close(channel);
        channel = -1;
    }
}

void Guardian::mark(QProcessEnvironment& environment)
{
    if (channel >= 0) {
        environment.insert(QString::fromLatin1(markName), QString::fromStdString(markValue(::getpid())));
    }
}

void Guardian::watch(const QString& projectFile, const QString& aside, const QString& lock)
{
    QByteArray message(1, Watch);
    for (const QString& path : {projectFile, aside, lock}) {
        message += QFile::encodeName(path) + '\0';
    }
    send(message);
}

void Guardian::forget()
{
    send(QByteArray(1, Forget));
}

void Guardian::listsTemporaryFiles(const QString& list)
{
    send(char(List) + QFile::encodeName(list));
}

void Guardian::dismiss()
{
    send(QByteArray(1, Dismiss));
}

#else

void Guardian::start() {}
void Guardian::mark(QProcessEnvironment&) {}
void Guardian::watch(const QString&, const QString&, const QString&) {}
void Guardian::forget() {}
void Guardian::listsTemporaryFiles(const QString&) {}
void Guardian::dismiss() {}

#endif
