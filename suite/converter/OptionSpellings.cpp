// SPDX-License-Identifier: MIT
#include "OptionSpellings.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace {

using enum Meaning;
using enum ValueForm;

constexpr Spelling dashed[] = {
    {u"-D", Define, Either},
    {u"--define-macro=", Define, Joined},
    {u"--define-macro", Define, Separate},
    {u"-U", Undefine, Either},
    {u"--undefine-macro=", Undefine, Joined},
    {u"--undefine-macro", Undefine, Separate},
    {u"-I", Folder, Either},
    {u"-I-", FoldersSoFarForQuotes, None},
    {u"--include-barrier", FoldersSoFarForQuotes, None},
    {u"--include-directory=", Folder, Joined},
    {u"--include-directory", Folder, Separate},
    {u"-iquote", QuoteFolder, Either},
    {u"-isystem", SystemFolder, Either},
    {u"-isystem-after", SystemFolder, Either},
    {u"-imsvc", SystemFolder, Either},
    {u"-cxx-isystem", SystemFolderOfCpp, Either},
    {u"-stdlib++-isystem", SystemFolderOfCpp, Either},
    {u"-c-isystem", SystemFolderOfC, Either},
    {u"-iwithsysroot", FolderBelowSysroot, Either},
    {u"-idirafter", AfterFolder, Either},
    {u"--include-directory-after=", AfterFolder, Joined},
    {u"--include-directory-after", AfterFolder, Separate},
    {u"-iprefix", Prefix, Either},
    {u"--include-prefix=", Prefix, Joined},
    {u"-iwithprefix", AfterPrefix, Either},
    {u"--include-with-prefix=", AfterPrefix, Joined},
    {u"-iwithprefixbefore", FolderAtPrefix, Either},
    {u"-include", ForcedInclude, Either},
    {u"--include=", ForcedInclude, Joined},
    {u"--include", ForcedInclude, Separate},
    {u"-imacros", MacroFile, Either},
    {u"--imacros=", MacroFile, Joined},
    {u"--imacros", MacroFile, Separate},
    {u"--sysroot=", Sysroot, Joined},
    {u"--sysroot", Sysroot, Separate},
    {u"-isysroot", HeaderSysroot, Either},
    {u"-x", Language, Either},
    {u"--language=", Language, Joined},
    {u"--language", Language, Separate},
    {u"-std=", Standard, Joined},
    {u"--std=", Standard, Joined},
    {u"--std", Standard, Separate},
    {u"-ansi", Ansi, None},
    {u"--ansi", Ansi, None},
    {u"-target", TargetTriple, Separate},
    {u"--target=", TargetTriple, Joined},
    {u"-arch", Target, Separate},
    {u"-m", Target, Rest},
    {u"-mllvm", NoEffect, Either},
    {u"-EL", Target, None},
    {u"-EB", Target, None},
    {u"-pthread", Target, None},
    {u"-pthreads", Target, None},
    {u"-undef", Target, None},
    {u"-nostdinc", Target, None},
    {u"-nostdinc++", Target, None},
    {u"-stdlib=", Target, Rest},
    {u"--gcc-toolchain=", Target, Rest},
    {u"-gcc-toolchain", Target, Separate},
    {u"-funsigned-char", Target, None},
    {u"-fsigned-char", Target, None},
    {u"-fno-unsigned-char", Target, None},
    {u"-fno-signed-char", Target, None},
    {u"-fshort-enums", Target, None},
    {u"-fno-short-enums", Target, None},
    {u"-fshort-wchar", Target, None},
    {u"-fno-short-wchar", Target, None},
    {u"-fpack-struct", Target, Rest},
    {u"-fexceptions", Target, None},
    {u"-fno-exceptions", Target, None},
    {u"-frtti", Target, None},
    {u"-fno-rtti", Target, None},
    {u"-ffreestanding", Target, None},
    {u"-fopenmp", Target, Rest},
    {u"-fopenacc", Target, Rest},
    {u"-ffast-math", Target, None},
    {u"-fchar8_t", Target, None},
    {u"-fno-char8_t", Target, None},
    {u"-fcoroutines", Target, Rest},
    {u"-fconcepts", Target, Rest},
    {u"-fmodules-ts", Target, None},
    {u"-fgnu89-inline", Target, None},
    {u"-fms-extensions", Target, None},
    {u"-fms-compatibility", Target, Rest},
    {u"-fsanitize=", Target, Rest},
    {u"-fblocks", Target, None},
    {u"-working-directory=", WorkingDirectory, Joined},
    {u"-working-directory", WorkingDirectory, Separate},
    {u"--", OptionsEnd, None},
    // No counterpart
    {u"-include-pch", NoCounterpart, Either},
    {u"-F", NoCounterpart, Either},
    {u"-iframework", NoCounterpart, Either},
    {u"-iframeworkwithsysroot", NoCounterpart, Either},
    {u"-ivfsoverlay", NoCounterpart, Either},
    {u"-imultilib", NoCounterpart, Either},
    {u"-A", NoCounterpart, Either},
    {u"--assert=", NoCounterpart, Joined},
    {u"-specs=", NoCounterpart, Rest},
    {u"--specs=", NoCounterpart, Rest},
    {u"--config", NoCounterpart, Separate},
    {u"--config=", NoCounterpart, Rest},
    {u"-traditional", NoCounterpart, Rest},
    {u"-trigraphs", NoCounterpart, None},
    {u"-remap", NoCounterpart, None},
    {u"-finput-charset=", NoCounterpart, Rest},
    {u"-fmodule", NoCounterpart, Rest},
    {u"-Xarch_host", NoCounterpart, Separate},
    {u"-Xarch_device", NoCounterpart, Separate},
    {u"-Xarch_x86_64", NoCounterpart, Separate},
    {u"-Xarch_arm64", NoCounterpart, Separate},
    {u"-Xcompiler", NoCounterpart, Separate},
    // No effect, with a value that must not be taken for an option
    {u"-o", NoEffect, Either},
    {u"--output", NoEffect, Separate},
    {u"-MF", NoEffect, Either},
    {u"-MT", NoEffect, Either},
    {u"-MQ", NoEffect, Either},
    {u"-MJ", NoEffect, Either},
    {u"-Xlinker", NoEffect, Separate},
    {u"-Xassembler", NoEffect, Separate},
    {u"-Xanalyzer", NoEffect, Separate},
    {u"-Xopenmp-target", NoEffect, Separate},
    {u"-Xcuda-ptxas", NoEffect, Separate},
    {u"-Xcuda-fatbinary", NoEffect, Separate},
    {u"--param", NoEffect, Separate},
    {u"-aux-info", NoEffect, Separate},
    {u"-dumpbase", NoEffect, Separate},
    {u"-dumpbase-ext", NoEffect, Separate},
    {u"-dumpdir", NoEffect, Separate},
    {u"-dependency-file", NoEffect, Separate},
    {u"-serialize-diagnostics", NoEffect, Separate},
    {u"--serialize-diagnostics", NoEffect, Separate},
    {u"-index-store-path", NoEffect, Separate},
    {u"-index-unit-output-path", NoEffect, Separate},
    {u"-target-feature", NoEffect, Separate},
    {u"-target-cpu", NoEffect, Separate},
    {u"-mrelocation-model", NoEffect, Separate},
    {u"-wrapper", NoEffect, Separate},
    {u"-framework", NoEffect, Separate},
    {u"-weak_framework", NoEffect, Separate},
    {u"-install_name", NoEffect, Separate},
    {u"-current_version", NoEffect, Separate},
    {u"-compatibility_version", NoEffect, Separate},
    {u"-bundle_loader", NoEffect, Separate},
    {u"-rpath", NoEffect, Separate},
    {u"-version-info", NoEffect, Separate},
    {u"-B", NoEffect, Either},
    {u"-L", NoEffect, Either},
    {u"-l", NoEffect, Either},
    {u"-T", NoEffect, Either},
    {u"-u", NoEffect, Either},
    {u"-z", NoEffect, Either},
    {u"-G", NoEffect, Either},
    {u"-e", NoEffect, Separate},
    // No effect
    {u"-c", NoEffect, None},
    {u"-S", NoEffect, None},
    {u"-E", NoEffect, None},
    {u"-C", NoEffect, None},
    {u"-CC", NoEffect, None},
    {u"-P", NoEffect, None},
    {u"-H", NoEffect, None},
    {u"-M", NoEffect, Rest},
    {u"-W", NoEffect, Rest},
    {u"-w", NoEffect, None},
    {u"-g", NoEffect, Rest},
    {u"-O", NoEffect, Rest},
    {u"-f", NoEffect, Rest},
    {u"-R", NoEffect, Rest},
    {u"-Q", NoEffect, Rest},
    {u"-p", NoEffect, None},
    {u"-pg", NoEffect, None},
    {u"-pipe", NoEffect, None},
    {u"-pie", NoEffect, None},
    {u"-pedantic", NoEffect, Rest},
    {u"-print-", NoEffect, Rest},
    {u"-save-", NoEffect, Rest},
    {u"-shared", NoEffect, Rest},
    {u"-static", NoEffect, Rest},
    {u"-no", NoEffect, Rest},
    {u"-s", NoEffect, None},
    {u"-r", NoEffect, None},
    {u"-v", NoEffect, None},
    {u"-rdynamic", NoEffect, None},
    {u"-dynamic", NoEffect, Rest},
    {u"-d", NoEffect, Rest},
    {u"-prefer-pic", NoEffect, None},
    {u"-prefer-non-pic", NoEffect, None},
    {u"--param=", NoEffect, Rest},
    {u"--output=", NoEffect, Rest},
    {u"--warn-", NoEffect, Rest},
    {u"--no-", NoEffect, Rest},
    {u"--coverage", NoEffect, None},
    {u"-coverage", NoEffect, None},
    {u"--verbose", NoEffect, None},
    {u"--debug", NoEffect, Rest},
    {u"--optimize", NoEffect, Rest},
    {u"--pedantic", NoEffect, Rest},
    {u"--compile", NoEffect, None},
    {u"--mode=", NoEffect, Rest},
    {u"--tag=", NoEffect, Rest},
    {u"--driver-mode=", NoEffect, Rest},
};

// Without the slash or dash.
constexpr Spelling slashed[] = {
    {u"D", Define, Either},
    {u"U", Undefine, Either},
    {u"I", Folder, Either},
    {u"FI", ForcedInclude, Either},
    {u"external:I", SystemFolder, Either},
    {u"imsvc", SystemFolder, Either},
    {u"std:", Standard, Joined},
    {u"TC", AllC, None},
    {u"TP", AllCpp, None},
    {u"Tc", FileOfC, Either},
    {u"Tp", FileOfCpp, Either},
    {u"MT", RuntimeLibrary, None},
    {u"MTd", RuntimeLibrary, None},
    {u"MD", RuntimeLibrary, None},
    {u"MDd", RuntimeLibrary, None},
    {u"LDd", RuntimeLibrary, None},
    {u"EH", Exceptions, Rest},
    {u"openmp", OpenMp, Rest},
    {u"J", Target, None},
    {u"Zp", Target, Rest},
    {u"arch:", Target, Rest},
    {u"GR-", Target, None},
    {u"link", OptionsEnd, None},
    {u"u", NoCounterpart, None},
    {u"AI", NoCounterpart, Either},
    {u"FU", NoCounterpart, Either},
    {u"clr", NoCounterpart, Rest},
    {u"ZW", NoCounterpart, Rest},
    {u"headerUnit", NoCounterpart, Separate},
    {u"headerUnit:angle", NoCounterpart, Separate},
    {u"headerUnit:quote", NoCounterpart, Separate},
    {u"headerName:angle", NoCounterpart, None},
    {u"headerName:quote", NoCounterpart, None},
    {u"reference", NoCounterpart, Separate},
    {u"source-charset:", NoCounterpart, Rest},
    {u"ifcOutput", NoEffect, Separate},
    {u"ifcSearchDir", NoCounterpart, Separate},
    {u"scanDependencies", NoEffect, Separate},
    {u"sourceDependencies", NoEffect, Separate},
    {u"external:", NoEffect, Rest},
    {u"execution-charset:", NoEffect, Rest},
    {u"validate-charset", NoEffect, Rest},
    {u"utf-8", NoEffect, None},
    {u"nologo", NoEffect, Rest},
    {u"showIncludes", NoEffect, Rest},
    {u"showFilenames", NoEffect, Rest},
    {u"bigobj", NoEffect, None},
    {u"diagnostics:", NoEffect, Rest},
    {u"errorReport:", NoEffect, Rest},
    {u"experimental:", NoEffect, Rest},
    {u"permissive", NoEffect, Rest},
    {u"analyze", NoEffect, Rest},
    {u"interface", NoEffect, None},
    {u"internalPartition", NoEffect, None},
    {u"await", NoEffect, Rest},
    {u"kernel", NoEffect, Rest},
    {u"guard:", NoEffect, Rest},
    {u"volatile:", NoEffect, Rest},
    {u"favor:", NoEffect, Rest},
    {u"fp:", NoEffect, Rest},
    {u"sdl", NoEffect, Rest},
    {u"cgthreads", NoEffect, Rest},
    {u"JMC", NoEffect, Rest},
    {u"MP", NoEffect, Rest},
    {u"LD", NoEffect, None},
    {u"RTC", NoEffect, Rest},
    {u"Fo", NoEffect, Rest},
    {u"Fd", NoEffect, Rest},
    {u"F", NoEffect, Rest},
    {u"G", NoEffect, Rest},
    {u"O", NoEffect, Rest},
    {u"W", NoEffect, Rest},
    {u"w", NoEffect, Rest},
    {u"Y", NoEffect, Rest},
    {u"Z", NoEffect, Rest},
    {u"Q", NoEffect, Rest},
    {u"H", NoEffect, Rest},
    {u"V", NoEffect, Rest},
    {u"B", NoEffect, Rest},
    {u"d1", NoEffect, Rest},
    {u"d2", NoEffect, Rest},
    {u"c", NoEffect, None},
    {u"C", NoEffect, None},
    {u"E", NoEffect, None},
    {u"EP", NoEffect, None},
    {u"P", NoEffect, None},
    {u"X", NoEffect, None},
    {u"doc", NoEffect, Rest},
    {u"vd", NoEffect, Rest},
    {u"vm", NoEffect, Rest},
    {u"o", NoEffect, Either},
};

bool fits(const Spelling& spelling, QStringView word)
{
    if (!word.startsWith(spelling.name)) {
        return false;
    }
    const bool isWhole = word.size() == spelling.name.size();
    switch (spelling.form) {
    case None:
    case Separate:
        return isWhole;
    case Joined:
        return !isWhole;
    case Either:
    case Rest:
        break;
    }
    return true;
}

// By the character that tells most names apart, the longest names first.
class Table
{
public:
    Table(std::span<const Spelling> spellings, qsizetype telling)
        : position(telling)
    {
        for (const Spelling& spelling : spellings) {
            slots[slotOf(spelling.name)].push_back(&spelling);
        }
        for (auto& names : slots) {
            std::ranges::stable_sort(names, [](const Spelling* left, const Spelling* right) {
                return left->name.size() > right->name.size();
            });
        }
    }

    const Spelling* find(QStringView word) const
    {
        for (const Spelling* spelling : slots[slotOf(word)]) {
            if (fits(*spelling, word)) {
                return spelling;
            }
        }
        return nullptr;
    }

private:
    size_t slotOf(QStringView name) const
    {
        return name.size() > position ? name[position].unicode() % slots.size() : 0;
    }

    qsizetype position;
    std::array<std::vector<const Spelling*>, 128> slots;
};

} // namespace

const Spelling* OptionSpellings::findDash(QStringView word)
{
    static const Table table(dashed, 1);
    return table.find(word);
}

const Spelling* OptionSpellings::findSlash(QStringView word)
{
    static const Table table(slashed, 0);
    return table.find(word.sliced(1));
}

bool OptionSpellings::takesNextWord(QStringView word)
{
    const auto takes = [&](const Spelling* spelling, qsizetype length) {
        return spelling &&
               (spelling->form == Separate || (spelling->form == Either && spelling->name.size() == length));
    };
    if (word.startsWith(u'-')) {
        return takes(findDash(word), word.size());
    }
    return word.startsWith(u'/') && word.size() > 1 && takes(findSlash(word), word.size() - 1);
}
