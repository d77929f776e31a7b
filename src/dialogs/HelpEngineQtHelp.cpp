// SPDX-License-Identifier: MIT
#include "dialogs/HelpEngine.h"

#include <QHelpEngineCore>

#include <utility>

namespace {

class QtHelpEngine : public HelpEngine
{
public:
    explicit QtHelpEngine(std::unique_ptr<QHelpEngineCore> reader)
        : core(std::move(reader))
    {
    }

    QList<QUrl> pages() const override
    {
        QList<QUrl> all;
        const QStringList documents = core->registeredDocumentations();
        for (const QString& document : documents) {
            all += core->files(document, QString());
        }
        return all;
    }

    QByteArray contents(const QUrl& page) const override { return core->fileData(page); }

private:
    std::unique_ptr<QHelpEngineCore> core;
};

} // namespace

std::unique_ptr<HelpEngine> HelpEngine::open(const QString& collection)
{
    auto core = std::make_unique<QHelpEngineCore>(collection);
    core->setReadOnly(true);
    return core->setupData() ? std::make_unique<QtHelpEngine>(std::move(core)) : nullptr;
}
