// SPDX-License-Identifier: MIT
#include "BuildReader.h"
#include "../CompileDatabase.h"
#include "../Failure.h"
#include "../Notices.h"
#include "../Output.h"
#include "../SourceCollector.h"
#include "BuildInputs.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

void tellDecisions(const Notices& notices)
{
    for (const QString& text : notices.said()) {
        print(stdout, text);
    }
}

BuildAnswer ask(const BuildInputs& inputs, const QString& projectFile, Notices& notices)
{
    try {
        return askBuildSystem(inputs, projectFile, notices);
    } catch (const Failure&) {
        tellDecisions(notices);
        for (const Notices::LeftOut& omission : notices.leftOut()) {
            print(stdout, omission.text());
        }
        throw;
    }
}

} // namespace

void readBuild(const BuildInputs& inputs, const QString& projectFile, SourceCollector& collector)
{
    Notices notices;
    const BuildAnswer answer = ask(inputs, projectFile, notices);
    tellDecisions(notices);
    for (const Notices::LeftOut& omission : notices.leftOut()) {
        collector.complain(omission.what + u": "_s + omission.reason, omission.place);
    }
    collector.setDescription(answer.database.isEmpty() ? QFileInfo(inputs.visualStudio).absoluteFilePath()
                                                       : answer.database);
    if (!answer.database.isEmpty()) {
        print(stdout, u"Reading "_s + answer.database);
        CompileDatabase::read(answer.database, collector);
    }
    for (const BuildCommand& command : answer.commands) {
        collector.add(command);
    }
}
