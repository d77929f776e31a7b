// SPDX-License-Identifier: MIT
#include "ProjectTree.h"
#include "Arguments.h"
#include "Paths.h"
#include "SharedOptions.h"
#include "ShortHash.h"

#include <QHash>
#include <QMap>
#include <QSet>

#include <algorithm>
#include <tuple>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// What becomes one part, by its folder first.
struct PartKey
{
    QString target;
    QString folder;

    friend auto operator<=>(const PartKey& left, const PartKey& right)
    {
        return std::tie(left.target, left.folder) <=> std::tie(right.target, right.folder);
    }
    friend bool operator==(const PartKey&, const PartKey&) = default;
    friend size_t qHash(const PartKey& key, size_t seed = 0) { return qHashMulti(seed, key.target, key.folder); }
};

struct Variant
{
    int options;
    int compiler;
};

class TreeBuilder
{
public:
    TreeBuilder(const Sources& from, const ProjectSources& chosen, const Arguments& wanted)
        : sources(from)
        , kept(chosen)
        , arguments(wanted)
    {
    }

    ProjectTree build()
    {
        tree.root.name = arguments.name;
        tree.root.sourceDir = kept.commonFolder;
        findVariants();
        collectParts();
        for (auto key = order.cbegin(); key != order.cend(); ++key) {
            QList<Group>& ofFolder = groups[key.value()];
            // What needs nothing beyond the root goes into the root itself.
            std::stable_partition(ofFolder.begin(), ofFolder.end(),
                                  [&](const Group& group) { return isForRoot(key.key(), group); });
            for (const Group& group : std::as_const(ofFolder)) {
                addPart(key.key(), group, &group == &ofFolder.first());
            }
        }
        return std::move(tree);
    }

private:
    struct Group
    {
        Variant variant;
        QStringList files;
        QSet<QString> names;
    };

    void findVariants()
    {
        QSet<int> sets;
        QSet<int> compilers;
        QSet<int> targets;
        QList<int> inOrder;
        for (const qsizetype unit : kept.units) {
            const SourceSettings& settings = sources.settingsOf(sources.units[unit]);
            if (!sets.contains(settings.options)) {
                sets.insert(settings.options);
                inOrder += settings.options;
            }
            compilers.insert(settings.compiler);
            targets.insert(sources.units[unit].target);
        }
        tree.shared = SharedOptions::of(sources.pool, inOrder);
        hasOneCompiler = compilers.size() == 1;
        tree.root.compiler = hasOneCompiler ? *compilers.begin() : -1;
        hasTargets = arguments.subProjects && targets.size() > 1;
    }

    void collectParts()
    {
        for (const qsizetype number : kept.units) {
            const SourceUnit& unit = sources.units[number];
            const SourceSettings& settings = sources.settingsOf(unit);
            const QString folder = arguments.subProjects ? Paths::folderOf(unit.path) : kept.commonFolder;
            const PartKey key{hasTargets ? sources.targets[unit.target] : QString(), folder};
            groupFor(key, {settings.options, settings.compiler}, unit.path).files += unit.path;
        }
    }

    Group& groupFor(const PartKey& key, Variant variant, const QString& path)
    {
        // Spellings of one folder that differ in case are one; the first is kept.
        const PartKey folded{key.target, Paths::key(key.folder)};
        const qsizetype number = numbers.value(folded, groups.size());
        if (number == groups.size()) {
            numbers.insert(folded, number);
            order.insert(key, number);
            groups += QList<Group>();
        }
        QList<Group>& ofFolder = groups[number];
        QList<qsizetype>& candidates = groupNumbers[{number, {variant.options, variant.compiler}}];
        // Within one folder names differ by themselves.
        const QString name = arguments.subProjects ? QString() : Paths::nameOf(path).toString();
        for (const qsizetype candidate : std::as_const(candidates)) {
            if (name.isEmpty() || !ofFolder[candidate].names.contains(name)) {
                ofFolder[candidate].names += name;
                return ofFolder[candidate];
            }
        }
        candidates += ofFolder.size();
        ofFolder += Group{.variant = variant, .files = {}, .names = {name}};
        return ofFolder.last();
    }

    bool addsOptions(const Group& group) const
    {
        return sources.pool.set(group.variant.options).size() != tree.shared.size();
    }

    bool isForRoot(const PartKey& key, const Group& group) const
    {
        return key.target.isEmpty() && key.folder == kept.commonFolder && hasOneCompiler && !addsOptions(group);
    }

    void addPart(const PartKey& key, const Group& group, bool isFirst)
    {
        if (isForRoot(key, group) && tree.root.files.isEmpty()) {
            tree.root.files = group.files;
            outputs.insert(QString());
            return;
        }
        ProjectTree::Node part;
        part.sourceDir = key.folder;
        part.files = group.files;
        part.options = addsOptions(group) ? group.variant.options : -1;
        part.compiler = hasOneCompiler ? -1 : group.variant.compiler;
        QString label = relativeFolder(key.folder);
        if (!key.target.isEmpty()) {
            label = label.isEmpty() ? key.target : key.target + u'/' + label;
        }
        part.outputSubFolder = freeOutput(label, group.variant, isFirst);
        part.name = part.outputSubFolder.isEmpty() ? arguments.name : part.outputSubFolder;
        tree.parts += part;
    }

    QString relativeFolder(const QString& folder) const
    {
        return folder.sliced(
            qMin(folder.size(), kept.commonFolder.size() + (kept.commonFolder.endsWith(u'/') ? 0 : 1)));
    }

    // The folder's own for the first set, then with a mark that stays the same as long as the options do.
    QString freeOutput(QString label, Variant variant, bool isFirst)
    {
        // A project file cuts its values there.
        label.replace(u'=', u'_');
        // The root's own output lies in the folder itself.
        if (isFirst && takeOutput(label)) {
            return label;
        }
        const QString marked = (label.isEmpty() ? arguments.name : label) + u'~' + mark(variant);
        QString result = marked;
        for (int i = 2; !takeOutput(result); ++i) {
            result = marked + u'~' + QString::number(i);
        }
        return result;
    }

    bool takeOutput(const QString& folder)
    {
        const qsizetype before = outputs.size();
        outputs.insert(folder.toLower());
        return outputs.size() != before;
    }

    QString mark(Variant variant) const
    {
        QString text;
        for (const Option& option : sources.pool.optionsOf(variant.options)) {
            text += QString::number(int(option.kind)) + option.text + u'\n';
        }
        if (variant.compiler >= 0) {
            const CompilerSetup& setup = sources.compilers[variant.compiler];
            text += setup.program + (setup.isC ? u"\nc\n"_s : u"\nc++\n"_s);
        }
        return shortHash(text);
    }

    const Sources& sources;
    const ProjectSources& kept;
    const Arguments& arguments;
    ProjectTree tree;
    bool hasOneCompiler = true;
    bool hasTargets = false;
    QMap<PartKey, qsizetype> order;
    QHash<PartKey, qsizetype> numbers;
    QList<QList<Group>> groups;
    QHash<std::pair<qsizetype, std::pair<int, int>>, QList<qsizetype>> groupNumbers;
    QSet<QString> outputs;
};

} // namespace

qsizetype ProjectTree::fileCount() const
{
    qsizetype count = root.files.size();
    for (const Node& node : parts) {
        count += node.files.size();
    }
    return count;
}

ProjectTree ProjectTree::build(const Sources& sources, const ProjectSources& kept, const Arguments& arguments)
{
    return TreeBuilder(sources, kept, arguments).build();
}
