#include "actions/action.h"
#include "app/engine_texts.h"
#include "support/test_main.h"
#include "ui/application.h"
#include "ui/info_panel.h"
#include "ui/menu_bar.h"
#include "ui/translated_names.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QTest>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

class Receiver final : public QObject
{
    Q_OBJECT

public:
    QList<quint32> triggered;

public Q_SLOTS:
    void OnActionTriggered() { triggered.append(CommandId(*qobject_cast<QAction*>(sender()))); }
};

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
                    QString::number(CommandId(*action)) +
                    (action->isEnabled() ? QString() : u"|off"_s) +
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
        Receiver receiver;
        const MenuBar bar(nullptr, &receiver);
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
        Receiver receiver;
        const MenuBar bar(nullptr, &receiver);
        const QHash<quint32, QString> tips = {
            {2, u"Open a font file of the type TTF, BDF, XBF, C or SIF"_s},
            {14, u"Shift pixel data up"_s},
            {18, u"Shift pixel data up"_s},
            {53, u"Set the current pixel to index 15"_s},
            {57, u"Show enabled characters only"_s},
            {65, u"Open the user manual (will be opened in a web browser)"_s}};
        for (auto tip = tips.begin(); tip != tips.end(); ++tip)
            QCOMPARE(bar.Command(tip.key())->statusTip(), tip.value());
        QCOMPARE(bar.PixelIndexMenu()->title(), u"Pi&xel index"_s);
        QVERIFY(bar.Command(99) == nullptr);
    }

    void German()
    {
        QTranslator texts;
        QTranslator toolkitTexts;
        QVERIFY(!LoadTexts(QLocale(QLocale::Finnish), texts, toolkitTexts));
        QVERIFY(!LoadTexts(QLocale(QLocale::English), texts, toolkitTexts));
        QVERIFY(LoadTexts(QLocale(QLocale::German), texts, toolkitTexts));
        QCoreApplication::installTranslator(&texts);
        Receiver receiver;
        const MenuBar bar(nullptr, &receiver);
        QCOMPARE(bar.actions().constFirst()->text(), u"&Datei"_s);
        QCOMPARE(bar.PixelIndexMenu()->title(), u"Pi&xelindex"_s);
        QCOMPARE(TranslatedFilter(u"C fonts (*.c);;All supported file types (*.c *.sif)"_s),
                 u"C-Schriften (*.c);;Alle unterstützten Dateitypen (*.c *.sif)"_s);
        QCOMPARE(Engine::tr("Given file does not exist!"),
                 u"Die angegebene Datei gibt es nicht!"_s);
        QCOMPARE(TranslatedLog(u"[Char 0x0041]: Set pixel index (65,3) to 4."_s),
                 u"[Char 0x0041]: Pixelindex (65,3) auf 4 gesetzt."_s);
        QCOMPARE(TranslatedLog(u"[Font]: Opened font file: a]: b.c"_s),
                 u"[Font]: Schriftdatei geöffnet: a]: b.c"_s);
        const InfoPanel info;
        QCOMPARE(info.findChildren<QLabel*>().size(), 40); // no two captions became one
        QCoreApplication::removeTranslator(&texts);
    }

    void CommandsTellTheirNumber()
    {
        Receiver receiver;
        const MenuBar bar(nullptr, &receiver);
        bar.Command(1)->trigger();
        bar.Command(3)->trigger(); // disabled
        bar.Command(64)->trigger();
        QCOMPARE(receiver.triggered, (QList<quint32>{1, 64}));
    }
};

GLYPHOR_TEST(TestMenus)

} // namespace Glyphor

#include "tst_menus.moc"
