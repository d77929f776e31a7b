// SPDX-License-Identifier: MIT
// The store that all programs of the suite share, and the installers' records: what is read can be written, and comes
// back as it was.
#include "app/AppRegistry.h"
#include "app/Installations.h"
#include "app/PersistedValues.h"
#include "Sandbox.h"
#include "StoreFolder.h"

using namespace Qt::StringLiterals;

namespace {

void checkSame(const PersistedValues& read, const PersistedValues& again)
{
    Sandbox::require(read.autoCreateOutpath == again.autoCreateOutpath, "the output path changes");
    Sandbox::require(read.cCurrentCEValue == again.cCurrentCEValue, "the current configuration changes");
    Sandbox::require(read.autoCreateDefines == again.autoCreateDefines, "the defines change");
    Sandbox::require(read.cMessages == again.cMessages, "the selected messages change");
    Sandbox::require(read.runCMA == again.runCMA, "a flag changes");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static AppRegistry registry;
    appRegistry = &registry;
    const QByteArray store = Sandbox::bytes(data, size);
    if (StoreFolder::holdsBinaryValues(store)) {
        return 0;
    }
    const StoreFolder folder({{u"WendleTools"_s, store}, {u"Orv C Source Code Analyser"_s, store}});
    PersistedValues values;
    values.Read(u"/suite/bin/ProjectCreation"_s);
    Installations::FindInstallations();
    values.Write();
    PersistedValues again;
    again.Read(u"/suite/bin/ProjectCreation"_s);
    checkSame(values, again);
    return 0;
}
