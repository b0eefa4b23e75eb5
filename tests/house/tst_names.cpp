#include "support/test_main.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

namespace Glyphor {

namespace {

struct ClassText
{
    QStringList bases;
    QSet<QString> operations;
};

using Classes = QHash<QString, ClassText>;

// What the headers below a folder declare, as far as a look at their text tells.
void ReadClasses(const QString& folder, Classes& classes)
{
    static const QRegularExpression declaration(
        u"\\nclass (?:Q_\\w+_EXPORT )?(\\w+)(?: final)?\\s*(?:: ([^{;]*))?\\{(.*?)\\n\\};"_s,
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression base(u"public (\\w+)"_s);
    static const QRegularExpression operation(u"\\b([A-Za-z]\\w*)\\s*\\("_s);
    QDirIterator headers(folder, {u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (headers.hasNext()) {
        const QString text = QString::fromUtf8(Test::ReadAll(headers.next()));
        for (auto found = declaration.globalMatch(text); found.hasNext();) {
            const auto match = found.next();
            ClassText& entry = classes[match.captured(1)];
            for (auto bases = base.globalMatch(match.captured(2)); bases.hasNext();)
                entry.bases.append(bases.next().captured(1));
            for (auto names = operation.globalMatch(match.captured(3)); names.hasNext();)
                entry.operations.insert(names.next().captured(1));
        }
    }
}

// By their names in lower case.
QHash<QString, QString> Inherited(const Classes& classes, const QString& name)
{
    QHash<QString, QString> inherited;
    for (const QString& base : classes[name].bases) {
        inherited.insert(Inherited(classes, base));
        for (const QString& operation : classes[base].operations)
            inherited.insert(operation.toLower(), operation);
    }
    return inherited;
}

} // namespace

// Operations of ours are told from the toolkit's by more than the case of a letter: a slip would
// call, or hide, the wrong one.
class TestNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NoOperationDiffersFromAnInheritedOneByCaseAlone()
    {
        Classes toolkit;
        for (const QString& module : {u"QtCore"_s, u"QtGui"_s, u"QtWidgets"_s})
            ReadClasses(QStringLiteral(TOOLKIT_HEADERS "/") + module, toolkit);
        QVERIFY(toolkit[u"QWidget"_s].operations.contains(u"update"_s));
        Classes ours;
        ReadClasses(QStringLiteral(PROJECT_SOURCES "/src"), ours);
        Classes all = toolkit;
        all.insert(ours);
        QStringList clashes;
        for (auto entry = ours.begin(); entry != ours.end(); ++entry) {
            const QHash<QString, QString> inherited = Inherited(all, entry.key());
            for (const QString& operation : entry->operations) {
                const QString other = inherited.value(operation.toLower(), operation);
                if (other != operation)
                    clashes.append(u"%1::%2 and %3"_s.arg(entry.key(), operation, other));
            }
        }
        QVERIFY2(Inherited(all, u"MainWindow"_s).contains(u"restorestate"_s), "nothing was read");
        QVERIFY2(clashes.isEmpty(), qUtf8Printable(clashes.join(u'\n')));
    }
};

GLYPHOR_TEST(TestNames)

} // namespace Glyphor

#include "tst_names.moc"
