#include "support/rows.h"
#include "support/test_main.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

namespace Glyphor {

// Compares the includes of every file with the tables of docs/architecture.md.
class TestLayers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FoldersIncludeOnlyWhatTheirTableAllows_data()
    {
        const Test::Rows<QString, int> row;
        row("floors", QString(), 9);
        row("rooms of the window's floor", u"ui/"_s, 7);
    }

    void FoldersIncludeOnlyWhatTheirTableAllows()
    {
        const auto [parent, folders] = Test::Row<QString, int>();
        const QHash<QString, QStringList> allowed = ReadTable(parent);
        QCOMPARE(allowed.size(), folders);
        const QRegularExpression include(u"^#include \"%1([a-z]+)/"_s.arg(parent),
                                         QRegularExpression::MultilineOption);
        int count = 0;
        for (auto folder = allowed.begin(); folder != allowed.end(); ++folder) {
            QDirIterator files(Sources(u"/src/"_s + parent + folder.key()), {u"*.h"_s, u"*.cpp"_s},
                               QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QString file = files.next();
                auto matches = include.globalMatch(QString::fromUtf8(Test::ReadAll(file)));
                while (matches.hasNext()) {
                    const QString included = matches.next().captured(1);
                    QVERIFY2(included == folder.key() || folder.value().contains(included),
                             qUtf8Printable(file + u" includes "_s + included));
                    ++count;
                }
            }
        }
        QVERIFY(count > 50);
        const QDir sources(Sources(u"/src/"_s + parent));
        for (const QString& folder : sources.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            QVERIFY2(allowed.contains(folder), qUtf8Printable(folder));
    }

private:
    static QString Sources(const QString& path)
    {
        return QString::fromUtf8(PROJECT_SOURCES) + path;
    }

    // Rows like "| files | ... | model, app |".
    static QHash<QString, QStringList> ReadTable(const QString& parent)
    {
        const QRegularExpression row(u"^\\| `%1([a-z]+)/` \\|.*\\| ([a-z, ]*|-) \\|$"_s.arg(parent),
                                     QRegularExpression::MultilineOption);
        QHash<QString, QStringList> table;
        auto rows = row.globalMatch(Test::Document(u"docs/architecture.md"_s));
        while (rows.hasNext()) {
            const auto match = rows.next();
            table.insert(match.captured(1), match.captured(2).split(u", "_s));
        }
        return table;
    }
};

GLYPHOR_TEST(TestLayers)

} // namespace Glyphor

#include "tst_layers.moc"
