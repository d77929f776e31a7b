// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <csignal>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

/// While it lives, files can be made but not written.
class FullDisk
{
public:
    FullDisk()
    {
        ::getrlimit(RLIMIT_FSIZE, &old);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit none = {0, old.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &old); }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit old = {};
};

/// What a shell gives the programs that it starts; here whoever starts a test has it.
struct [[maybe_unused]] OwnConsole
{
};

/// Nobody can keep others from opening a file.
struct [[maybe_unused]] HeldFile
{
    explicit HeldFile(const QString& /*name*/) {}
};
#else
#include <sys/types.h>

// What tests ask of a Unix system, as far as Windows has it: rights keep nobody out, as with root; INT is Ctrl+C
// in the test's own console, any other signal ends the process at once; files can always be
// written; nothing makes a pipe with a name in a folder.
#define SIGHUP 1
#define SIGQUIT 3
#define SIGKILL 9

/// A console for the programs that the test starts while this lives; its events do not end the test.
class OwnConsole
{
public:
    OwnConsole();
    ~OwnConsole();
    Q_DISABLE_COPY_MOVE(OwnConsole)
};

int geteuid();
int kill(pid_t process, int signal);
int mkfifo(const char* name, int mode);

/// While it lives nobody else can open the file, if any.
class HeldFile
{
public:
    explicit HeldFile(const QString& name);
    ~HeldFile();
    Q_DISABLE_COPY_MOVE(HeldFile)

private:
    void* handle;
};

struct FullDisk
{
    FullDisk() { qWarning("no limit on the size of files here"); }
};
#endif
