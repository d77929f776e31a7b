// SPDX-License-Identifier: MIT
// The program's own store: its window and the remembered inputs of a conversion type.
#include "app/AppRegistry.h"
#include "definitions/InputValues.h"
#include "Sandbox.h"
#include "StoreFolder.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray& definitions()
{
    static const QByteArray text =
        "<settings><projectCreator><name>T</name><exe>e</exe>"
        "<inputData><displayName>A</displayName><argDef>%A</argDef></inputData>"
        "<inputData><displayName>G</displayName><inputType>GROUP</inputType><argDef>%G</argDef>"
        "<inputData><displayName>B</displayName><inputType>CHECK</inputType></inputData></inputData>"
        "</projectCreator></settings>";
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text = Sandbox::bytes(data, size);
    if (StoreFolder::holdsBinaryValues(text)) {
        return 0;
    }
    const StoreFolder folder({{u"ProjectCreation"_s, text}});
    AppRegistry registry;
    appRegistry = &registry;
    KOVRASettingsFile types;
    types.readDocument(definitions(), {});
    const auto& creators = types.projectCreators;
    const auto inGroup = [&creators](QSettings* store, const auto& use) {
        store->beginGroup("Settings"_L1);
        use(*store, creators);
        store->endGroup();
    };
    QObject::connect(&registry, &AppRegistry::ReadRegistryValues, &registry,
                     [&](QSettings* store) { inGroup(store, InputValues::read); });
    QObject::connect(&registry, &AppRegistry::WriteRegistryValues, &registry,
                     [&](QSettings* store) { inGroup(store, InputValues::write); });

    registry.InitWindowSettings(u"ProjectCreation"_s, 600, 400);
    const QSize windowSize = registry.windowSize;
    const QString input = creators.front()->inputData.front()->value;
    Sandbox::require(registry.WriteRegistry(), "the store is not kept");
    registry.InitWindowSettings(u"ProjectCreation"_s, 600, 400);
    Sandbox::require(windowSize == registry.windowSize, "the window's size changes");
    Sandbox::require(input == creators.front()->inputData.front()->value, "a remembered input changes");
    return 0;
}
