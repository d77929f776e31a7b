// SPDX-License-Identifier: MIT
// A personality or metrics file: which analyser it belongs to, against a search that reads the text once an option.
#include "personality/AnalyserInference.h"
#include "personality/FileScans.h"
#include "personality/MessageSelectionFile.h"
#include "personality/OptionTables.h"
#include "Sandbox.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool mentions(const QString& text, const QStringList& options, bool asSetting)
{
    return std::ranges::any_of(options, [&](const QString& option) {
        const auto contains = [&](char16_t end) { return text.contains(option + end, Qt::CaseInsensitive); };
        return asSetting ? contains(u'+') || contains(u'-') || contains(u' ')
                         : text.contains(option, Qt::CaseInsensitive);
    });
}

void infer(const QString& file)
{
    for (const QString& source : {u"a.c"_s, u"a.cpp"_s}) {
        InferenceInput input{.compilerPersonality = file,
                             .analyserPersonality = file,
                             .metricsPath = file,
                             .projectFile = Sandbox::path(u"c/p.prj"_s),
                             .cInstallDir = Sandbox::path(u"c"_s),
                             .cppInstallDir = Sandbox::path(u"cpp"_s),
                             .eachSource = [&](const auto& visit) { visit(source); }};
        Sandbox::require(inferAnalyser(input) != ProjectType::Unknown, "a project with a source has no analyser");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray input = Sandbox::bytes(data, size);
    const QString file = Sandbox::write(u"personality"_s, input);
    // Files are read as text: without carriage returns.
    const QString text = QString::fromLocal8Bit(input).remove(u'\r');
    Sandbox::require(FileScans::mentionsCOnlyOption(file) == mentions(text, OptionTables::cOnlyOptions(), true),
                     "the search for C options");
    Sandbox::require(FileScans::mentionsCppOnlyOption(file) == mentions(text, OptionTables::cppOnlyOptions(), false),
                     "the search for C++ options");
    FileScans::hasCMetrics(file);
    FileScans::hasCppMetrics(file);
    infer(file);
    writeMessageSelectionFile(text.split(u'\n'), Sandbox::path(u"messages"_s));
    return 0;
}
