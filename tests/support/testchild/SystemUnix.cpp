// SPDX-License-Identifier: MIT
#include "System.h"

#include <csignal>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

Words System::commandLine(int argc, char** argv)
{
    Words words(argv, argv + argc);
    // Found in PATH, its name alone does not tell its folder.
    std::string folders = variable("PATH");
    while (words[0].find('/') == std::string::npos && !folders.empty()) {
        const std::string folder = folders.substr(0, folders.find(':'));
        folders.erase(0, folder.size() + 1);
        words[0].insert(0, std::filesystem::exists(folder + '/' + words[0] + ".verbs") ? folder + '/' : "");
    }
    return words;
}

std::string System::variable(const std::string& name)
{
    const char* value = std::getenv(name.c_str());
    return value != nullptr ? value : "";
}

long long System::processId()
{
    return ::getpid();
}

void System::start(Place place, const Words&, const std::string&, const std::function<void()>& run)
{
    if (::fork() != 0) {
        return;
    }
    place == Place::Group ? 0 : place == Place::OwnGroup ? ::setpgid(0, 0) : ::setsid();
    if (place == Place::Daemon && ::fork() != 0) {
        ::_exit(0);
    }
    run();
    std::exit(0);
}

void System::waitForAll()
{
    while (::wait(nullptr) > 0) {
    }
}

void System::become(const Words& command)
{
    std::vector<char*> words;
    for (const std::string& word : command) {
        words.push_back(const_cast<char*>(word.c_str()));
    }
    words.push_back(nullptr);
    ::execvp(words[0], words.data());
    ::_exit(127);
}

void System::ignoreRequests()
{
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        std::signal(signal, SIG_IGN);
    }
}

void System::crash()
{
    std::raise(SIGSEGV);
}

void System::die()
{
    std::raise(SIGKILL);
}

void System::closeOutput()
{
    ::close(1);
    ::close(2);
}
