// SPDX-License-Identifier: MIT
// The definitions file: read with its launchers; the defaults of every conversion type become a command line.
#include "app/AppRegistry.h"
#include "definitions/InputValues.h"
#include "launchers/PageData.h"
#include "launchers/PageReader.h"
#include "process/ArgumentSubstitution.h"
#include "process/WizardState.h"
#include "Sandbox.h"

using namespace Qt::StringLiterals;

namespace {

FieldSource defaults(bool isC)
{
    return [isC](const ArgumentDefinition& definition) {
        const QString& text = definition.DefaultValue(isC);
        return FieldState{.hasText = definition.isText(),
                          .text = text,
                          .hasSwitch = definition.isSwitch(),
                          .switchActive = !definition.isHiddenFor(isC),
                          .checked = text.toInt() > 0};
    };
}

void convert(ProjectCreatorData& creator, bool isC)
{
    const FieldSource source = defaults(isC);
    for (const auto& definition : creator.inputData) {
        InputValues::remember(*definition, source);
    }
    InputValues::firstIncomplete(creator.inputData, source);
    WizardState state;
    state.fileName = u"new"_s;
    state.fileDir = Sandbox::path({});
    state.projectCreator = &creator;
    state.SetAnalyser(isC);
    const QStringList arguments = conversionArguments(state);
    Sandbox::require(arguments.size() >= creator.exeArgs.size(), "an argument of a conversion is lost");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static AppRegistry registry;
    appRegistry = &registry;
    const KOVRASettingsFile::Context context{.places = {u"/suite"_s, u"/suite/c"_s, u"/suite/cpp"_s},
                                             .readPage = readLauncherPage};
    KOVRASettingsFile definitions;
    definitions.readDocument(Sandbox::bytes(data, size), context);
    Sandbox::require((definitions.lastError.line > 0) == !definitions.lastError.reason.isEmpty(),
                     "an error without a line or without a reason");
    definitions.standardFiles();
    for (const auto& creator : definitions.projectCreators) {
        convert(*creator, true);
        convert(*creator, false);
    }
    for (const auto& page : definitions.applicationPages) {
        page->ResetApplications();
    }
    return 0;
}
