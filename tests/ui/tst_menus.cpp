#include "actions/action.h"
#include "app/engine_texts.h"
#include "files/file_types.h"
#include "support/test_main.h"
#include "ui/support/application.h"
#include "ui/window/info_panel.h"
#include "ui/window/menu_bar.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QTest>

namespace Glyphor {

namespace {

// A line for each entry: indentation, text, shortcut, number and state.
void Describe(const QList<QAction*>& actions, int depth, QStringList& lines)
{
    for (const QAction* const action : actions) {
        QString line(depth * 2, u' ');
        if (action->isSeparator()) {
            line += u'-';
        } else if (action->menu() != nullptr) {
            line += action->text() + u':';
        } else {
            line += action->text() + u'|' + action->shortcut().toString() + u'|' +
                    action->data().toString() + (action->isEnabled() ? QString() : u"|off"_s) +
                    (action->isChecked() ? u"|checked"_s : QString());
        }
        lines.append(line);
        if (action->menu() != nullptr)
            Describe(action->menu()->actions(), depth + 1, lines);
    }
}

} // namespace

class TestMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Tree()
    {
        const MenuBar bar(nullptr);
        QStringList lines;
        Describe(bar.actions(), 0, lines);
        QFile file(QStringLiteral(TEST_SOURCES "/ui/menus.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList expected = QString::fromUtf8(file.readAll()).trimmed().split(u'\n');
        for (qsizetype index = 0; index < std::min(lines.size(), expected.size()); ++index)
            QCOMPARE(lines[index], expected[index]);
        QCOMPARE(lines.size(), expected.size());
    }

    void StatusTips()
    {
        const MenuBar bar(nullptr);
        const QHash<quint32, QString> tips = {
            {CommandId(ActionType::OpenFont),
             u"Open a font file of the type TTF, BDF, XBF, C or SIF"_s},
            {CommandId(ActionType::ShiftUp), u"Shift pixel data up"_s},
            {CommandId(ActionType::MoveUp), u"Shift pixel data up"_s},
            {CommandId(ActionType::SetPixelIndex15), u"Set the current pixel to index 15"_s},
            {CommandId(WindowCommand::AllCharacters), u"Show enabled characters only"_s},
            {CommandId(WindowCommand::UserManual),
             u"Open the user manual (will be opened in a web browser)"_s}};
        for (auto tip = tips.begin(); tip != tips.end(); ++tip)
            QCOMPARE(bar.Command(tip.key())->statusTip(), tip.value());
        QCOMPARE(bar.Submenu(SubmenuId::PixelIndex)->title(), u"Pi&xel index"_s);
        QVERIFY(bar.Command(quint32(99)) == nullptr);
    }

    void German()
    {
        QTranslator texts;
        QTranslator toolkitTexts;
        QVERIFY(!LoadTexts(QLocale(QLocale::Finnish), texts, toolkitTexts));
        QVERIFY(!LoadTexts(QLocale(QLocale::English), texts, toolkitTexts));
        QVERIFY(LoadTexts(QLocale(QLocale::German), texts, toolkitTexts));
        QCoreApplication::installTranslator(&texts);
        const MenuBar bar(nullptr);
        QCOMPARE(bar.actions().constFirst()->text(), u"&Datei"_s);
        QCOMPARE(bar.Submenu(SubmenuId::PixelIndex)->title(), u"Pi&xelindex"_s);
        const QString filter = FontFileFilter(true);
        QVERIFY(filter.startsWith(u"C-Schriften (*.c *.cpp "_s));
        QVERIFY(filter.contains(u" *.sif);;Alle unterstützten Dateitypen (*.c "_s) ||
                filter.contains(u"(*.sif);;Alle unterstützten Dateitypen (*.c "_s));
        QCOMPARE(Engine::tr("Given file does not exist!"),
                 u"Die angegebene Datei gibt es nicht!"_s);
        const LogEntry pixel =
            LogEntry(LogMessage(ActionType::SetPixelIndex0), {u"65"_s, u"3"_s, u"4"_s})
                .About(RangePrefix(0x41, 0x41));
        QCOMPARE(pixel.Text(), u"[Char 0x0041]: Set pixel index (65,3) to 4."_s);
        QCOMPARE(pixel.Translated(), u"[Char 0x0041]: Pixelindex (65,3) auf 4 gesetzt."_s);
        QCOMPARE(LogEntry(LogMessage(ActionType::OpenFont), {u"a]: %1.c"_s}).Translated(),
                 u"[Font]: Schriftdatei geöffnet: a]: %1.c"_s);
        const InfoPanel info;
        QCOMPARE(info.findChildren<QLabel*>().size(), 34); // no two captions became one
        QCoreApplication::removeTranslator(&texts);
    }
};

GLYPHOR_TEST(TestMenus)

} // namespace Glyphor

#include "tst_menus.moc"
