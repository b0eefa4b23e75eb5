#include "cli/command_line_option.h"
#include "support/test_main.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

namespace Glyphor {

// The manual and the man page tell all options as they are, and no others.
class TestManual : public QObject
{
    Q_OBJECT

    static QStringList Keywords(const CommandLineOption& option)
    {
        QStringList keywords;
        for (const CommandLineParameter& parameter : option.parameters) {
            if (parameter.keywords == nullptr)
                continue;
            for (const ParameterKeywordTable::Entry& entry : parameter.keywords->Entries()) {
                if (!entry.hidden)
                    keywords.append(entry.keyword);
            }
        }
        return keywords;
    }

    static QStringList Captured(const QString& text, const QString& pattern)
    {
        QStringList found;
        const QRegularExpression expression(pattern,
                                            QRegularExpression::DotMatchesEverythingOption);
        for (const QRegularExpressionMatch& match : expression.globalMatch(text))
            found.append(match.captured(1));
        return found;
    }

private Q_SLOTS:
    void ManualHasTheOptions()
    {
        const QString manual = Test::Document(u"docs/manual/index.html"_s);
        QStringList forms;
        for (const CommandLineOption& option : CommandLineOptions()) {
            if (option.description.isEmpty())
                continue;
            const QString form = option.Form().toHtmlEscaped();
            forms.append(form);
            const qsizetype entry = manual.indexOf(u"<dt><code>%1</code></dt>"_s.arg(form));
            QVERIFY2(entry >= 0, qPrintable(form));
            const QString text = manual.sliced(entry, manual.indexOf("</dd>"_L1, entry) - entry);
            for (const QString& keyword : Keywords(option))
                QVERIFY2(text.contains(u"<code>%1</code>"_s.arg(keyword)),
                         qPrintable(form + u' ' + keyword));
            if (!option.shortName.isEmpty())
                QVERIFY2(text.contains(u"<code>-%1</code>"_s.arg(option.shortName)),
                         qPrintable(form + u" -"_s + option.shortName));
        }
        QCOMPARE(Captured(manual, u"<dt><code>(.*?)</code></dt>"_s), forms);
    }

    void ManPageHasTheOptions()
    {
        const QString page = Test::Document(u"docs/Glyphor.1"_s);
        QStringList names;
        for (const CommandLineOption& option : CommandLineOptions()) {
            if (option.description.isEmpty())
                continue;
            if (!option.longName.isEmpty())
                names.append(option.longName);
            for (const QString& keyword : Keywords(option))
                QVERIFY2(page.contains(keyword), qPrintable(keyword));
        }
        const QString options = page.sliced(page.indexOf(".SH OPTIONS"_L1));
        QCOMPARE(Captured(options.left(options.indexOf("\n.SH "_L1, 1)),
                          u"\\.TP\\n\\.BI? \\\\-(\\w+)"_s),
                 names);
    }

    void PicturesAndLinksLeadSomewhere()
    {
        const QString manual = Test::Document(u"docs/manual/index.html"_s);
        const QStringList pictures = Captured(manual, u"<img[^>]* src=\"(.*?)\""_s);
        QVERIFY(!pictures.isEmpty());
        for (const QString& picture : pictures)
            QVERIFY2(QFileInfo::exists(QStringLiteral(PROJECT_SOURCES "/docs/manual/") + picture),
                     qPrintable(picture));
        for (const QString& target : Captured(manual, u"href=\"#(.*?)\""_s))
            QVERIFY2(manual.contains(u" id=\"%1\""_s.arg(target)), qPrintable(target));
    }
};

GLYPHOR_TEST(TestManual)

} // namespace Glyphor

#include "tst_manual.moc"
