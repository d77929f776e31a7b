// SPDX-License-Identifier: MIT
#include "System.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <thread>

namespace fs = std::filesystem;

namespace {

// The program's name and its arguments.
Words& self()
{
    static Words words;
    return words;
}

fs::path pathOf(const std::string& text)
{
    return fs::path(std::u8string(text.begin(), text.end())).lexically_normal();
}

std::string contentsOf(const std::string& name)
{
    std::ifstream file(pathOf(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// $0 to $9: the program's name and its arguments; $*: all of these; $cwd: its folder; else a variable.
std::string valueOf(const std::string& name)
{
    if (name == "*") {
        std::string all;
        for (std::size_t i = 1; i < self().size(); ++i) {
            all += (i == 1 ? "" : " ") + self()[i];
        }
        return all;
    }
    if (name == "cwd") {
        const std::u8string folder = fs::current_path().generic_u8string();
        return {folder.begin(), folder.end()};
    }
    if (name >= "0" && name <= "9") {
        const auto number = std::size_t(name[0] - '0');
        return number < self().size() ? self()[number] : std::string();
    }
    return System::variable(name);
}

// Behind the sign: its one digit or sign, or the letters of a name.
std::string expanded(const std::string& text, std::size_t& at)
{
    const std::size_t length = text.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz", at) - at;
    const std::string name = text.substr(at, std::max<std::size_t>(length, 1));
    at += name.size();
    return valueOf(name);
}

char escaped(char letter)
{
    return letter == 'n' ? '\n' : letter == 'r' ? '\r' : letter == '0' ? '\0' : letter == 'x' ? '\x82' : letter;
}

// Up to the sign that closes it, with others of its kind within braces.
std::string held(const std::string& text, std::size_t& at, char opening)
{
    const char closing = opening == '{' ? '}' : opening;
    std::string inner;
    for (int depth = 1; at < text.size(); inner += text[at++]) {
        depth += text[at] == closing ? -1 : text[at] == opening ? 1 : 0;
        if (depth == 0) {
            ++at;
            break;
        }
    }
    return inner;
}

// Statements end with ";" or the line; '...' and {...} are one word as they stand; \x is a byte that no text has.
std::vector<Words> statements(const std::string& text)
{
    std::vector<Words> all(1);
    bool inWord = false;
    for (std::size_t at = 0; at < text.size();) {
        const char c = text[at++];
        if (c == ';' || c == '\n' || c == ' ') {
            inWord = false;
            if (c != ' ') {
                all.emplace_back();
            }
            continue;
        }
        if (!inWord) {
            all.back().emplace_back();
        }
        inWord = true;
        all.back().back() += c == '\'' || c == '{' ? held(text, at, c)
                             : c == '$'            ? expanded(text, at)
                                                   : std::string(1, c == '\\' ? escaped(text[at++]) : c);
    }
    std::erase_if(all, [](const Words& words) { return words.empty(); });
    return all;
}

std::string lineOf(const Words& words, std::size_t from = 1)
{
    std::string line;
    for (std::size_t i = from; i < words.size(); ++i) {
        line += (i == from ? "" : " ") + words[i];
    }
    return line + '\n';
}

void put(std::FILE* channel, const std::string& text)
{
    std::fwrite(text.data(), 1, text.size(), channel);
    std::fflush(channel);
}

// So many bytes of the same again and again; without an end for 0.
void flood(std::FILE* channel, const std::string& count, const std::string& unit)
{
    std::string piece;
    while (piece.size() < 60000) {
        piece += unit;
    }
    const std::size_t size = std::stoull(count);
    for (std::size_t done = 0; size == 0 || done < size; done += piece.size()) {
        put(channel, size == 0 ? piece : piece.substr(0, size - done));
    }
}

void save(const Words& words, std::ios::openmode mode)
{
    std::ofstream(pathOf(words.at(1)), std::ios::binary | mode) << (words.size() > 2 ? lineOf(words, 2) : "");
}

// To standard output, or behind what a file holds.
void copyInput(const Words& words)
{
    std::FILE* target = words.size() > 1 ? std::fopen(words[1].c_str(), "ab") : stdout;
    for (int c = std::getchar(); c != EOF; c = std::getchar()) {
        put(target, std::string(1, char(c)));
    }
}

void pause(int milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

// A name that ends with "*" means all that begin so.
void remove(std::string name)
{
    const bool all = name.ends_with('*');
    name.resize(name.size() - std::size_t(all));
    const fs::path path = pathOf(name);
    std::error_code ignored;
    if (!all) {
        fs::remove_all(path.has_filename() ? path : path.parent_path(), ignored);
        return;
    }
    for (const auto& entry : fs::directory_iterator(path.parent_path())) {
        if (entry.path().filename().native().starts_with(path.filename().native())) {
            fs::remove(entry.path(), ignored);
        }
    }
}

void run(const std::string& text);

// True where an argument, or the file that it names, if only behind an equals sign, holds the text.
bool isTold(const std::string& text)
{
    return std::any_of(self().begin() + 1, self().end(), [&text](const std::string& argument) {
        return argument.find(text) != std::string::npos ||
               (fs::is_regular_file(pathOf(argument.substr(argument.find('=') + 1))) &&
                contentsOf(argument.substr(argument.find('=') + 1)).find(text) != std::string::npos);
    });
}

// The program, if any is named, and from this number on what the arguments say.
void become(const Words& words)
{
    Words command(words.begin() + 2, words.end());
    command.insert(command.end(), self().begin() + std::stoi(words[1]), self().end());
    System::become(command);
}

void start(System::Place place, const Words& words)
{
    System::start(place, self(), words.at(1), [&words] { run(words[1]); });
}

using Verbs = std::map<std::string, std::function<void(const Words&)>>;

Verbs outputVerbs()
{
    return {{"print", [](const Words& w) { put(stdout, lineOf(w)); }},
            {"print-error", [](const Words& w) { put(stderr, lineOf(w)); }},
            {"put", [](const Words& w) { put(stdout, w.at(1)); }},
            {"put-error", [](const Words& w) { put(stderr, w.at(1)); }},
            {"flood", [](const Words& w) { flood(stdout, w.at(1), lineOf(w, 2)); }},
            {"flood-error", [](const Words& w) { flood(stderr, w.at(1), lineOf(w, 2)); }},
            {"long-line", [](const Words& w) { flood(stdout, w.at(1), "x"); }},
            {"copy-input", copyInput},
            {"close-output", [](const Words&) { System::closeOutput(); }}};
}

Verbs fileVerbs()
{
    return {{"write", [](const Words& w) { save(w, std::ios::trunc); }},
            {"append", [](const Words& w) { save(w, std::ios::app); }},
            {"mark",
             [](const Words& w) {
                 save({{}, w.at(1), std::to_string(System::processId())}, std::ios::app);
             }},
            {"copy", [](const Words& w) { fs::copy_file(pathOf(w.at(1)), pathOf(w.at(2))); }},
            {"rename", [](const Words& w) { fs::rename(pathOf(w.at(1)), pathOf(w.at(2))); }},
            {"remove", [](const Words& w) { remove(w.at(1)); }},
            {"folder", [](const Words& w) { fs::create_directories(pathOf(w.at(1))); }},
            {"if-exists", [](const Words& w) { fs::exists(pathOf(w.at(1))) ? run(w.at(2)) : void(); }},
            {"if-told", [](const Words& w) { isTold(w.at(1)) ? run(w.at(2)) : void(); }},
            {"await", [](const Words& w) {
                 while (!fs::exists(pathOf(w.at(1)))) {
                     pause(10);
                 }
             }}};
}

Verbs processVerbs()
{
    return {{"exit", [](const Words& w) { std::exit(w.size() > 1 && !w[1].empty() ? std::stoi(w[1]) : 0); }},
            {"crash", [](const Words&) { System::crash(); }},
            {"die", [](const Words&) { System::die(); }},
            {"hang", [](const Words&) { pause(1'000'000); }},
            {"pause", [](const Words& w) { pause(std::stoi(w.at(1))); }},
            {"ignore-requests", [](const Words&) { System::ignoreRequests(); }},
            {"start", [](const Words& w) { start(System::Place::Group, w); }},
            {"start-group", [](const Words& w) { start(System::Place::OwnGroup, w); }},
            {"start-session", [](const Words& w) { start(System::Place::OwnSession, w); }},
            {"start-daemon", [](const Words& w) { start(System::Place::Daemon, w); }},
            {"wait", [](const Words&) { System::waitForAll(); }},
            {"become", become},
            {"repeat", [](const Words& w) {
                 for (int i = 0; i < std::stoi(w.at(1)); ++i) {
                     run(w.at(2));
                 }
             }}};
}

void run(const std::string& text)
{
    static const Verbs verbs = [] {
        Verbs all = outputVerbs();
        all.merge(fileVerbs());
        all.merge(processVerbs());
        return all;
    }();
    for (const Words& words : statements(text)) {
        const auto verb = verbs.find(words[0]);
        if (verb == verbs.end()) {
            put(stderr, "no such verb: " + words[0] + '\n');
            std::exit(99);
        }
        verb->second(words);
    }
}

} // namespace

// Does what the file of verbs beside it says, in place of the programs that the product starts.
int main(int argc, char** argv)
{
    self() = System::commandLine(argc, argv);
    std::string text = contentsOf(self()[0] + ".verbs");
    if (self().size() > 2 && self()[1] == "--verbs") {
        text = self()[2];
        self().erase(self().begin() + 1, self().begin() + 3);
    }
    run(text);
    return 0;
}
