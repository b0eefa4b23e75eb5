#include "support/test_main.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

namespace Glyphor {

using namespace Qt::StringLiterals;

// Compares the includes of every file with the table of floors in docs/architecture.md.
class TestLayers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FloorsIncludeOnlyTheFloorsBelow()
    {
        const QHash<QString, QStringList> allowed = ReadTable();
        QVERIFY(allowed.size() >= 6);
        static const QRegularExpression include(u"^#include \"([a-z]+)/"_s,
                                                QRegularExpression::MultilineOption);
        int count = 0;
        for (auto floor = allowed.begin(); floor != allowed.end(); ++floor) {
            QDirIterator files(Sources(u"/src/"_s + floor.key()), {u"*.h"_s, u"*.cpp"_s});
            while (files.hasNext()) {
                const QString file = files.next();
                auto matches = include.globalMatch(QString::fromUtf8(Test::ReadAll(file)));
                while (matches.hasNext()) {
                    const QString included = matches.next().captured(1);
                    QVERIFY2(included == floor.key() || floor.value().contains(included),
                             qUtf8Printable(file + u" includes "_s + included));
                    ++count;
                }
            }
        }
        QVERIFY(count > 50);
        const QStringList folders =
            QDir(Sources(u"/src"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString& folder : folders)
            QVERIFY2(allowed.contains(folder), qUtf8Printable(folder));
    }

private:
    static QString Sources(const QString& path)
    {
        return QString::fromUtf8(PROJECT_SOURCES) + path;
    }

    // Rows like "| files | ... | model, app |".
    static QHash<QString, QStringList> ReadTable()
    {
        static const QRegularExpression row(u"^\\| `([a-z]+)/` \\|.*\\| ([a-z, ]*|-) \\|$"_s,
                                            QRegularExpression::MultilineOption);
        QHash<QString, QStringList> table;
        auto rows =
            row.globalMatch(QString::fromUtf8(Test::ReadAll(Sources(u"/docs/architecture.md"_s))));
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
