#include "app/settings.h"
#include "render/font_database.h"
#include "support/test_main.h"
#include "ui/dialog_fixture.h"
#include "ui/dialogs/font_dialog.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

namespace Glyphor {

using Test::Labelled;
using Test::Ok;

namespace {

QStringList Texts(const QListWidget& list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts.append(list.item(row)->text());
    return texts;
}

} // namespace

class TestFontDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Settings::Instance().fontDialog.save({}); }

    void InstalledFonts()
    {
        auto database = std::make_shared<FontDatabase>();
        QTemporaryDir fonts;
        QVERIFY(QFile::copy(QStringLiteral(SYSTEM_FONTS "/DejaVuSans.ttf"),
                            fonts.filePath(u"a.ttf"_s)));
        QVERIFY(QFile::copy(QStringLiteral(SYSTEM_FONTS "/DejaVuSans-Bold.ttf"),
                            fonts.filePath(u"b.ttf"_s)));
        QVERIFY(QFile::copy(QStringLiteral(SYSTEM_FONTS "/DejaVuSansMono.ttf"),
                            fonts.filePath(u"c.ttf"_s)));
        FontDatabase::SetCurrent(nullptr);
        {
            FontDialog dialog(nullptr);
            dialog.show();
            dialog.SetIndexing(true);
            QVERIFY(!Ok(dialog)->isEnabled());
            database->Build(
                {fonts.path()}, [](int) {}, [](int) { return true; });
            FontDatabase::SetCurrent(database);
            dialog.ShowDatabase();
            dialog.SetIndexing(false);
            auto* const families = dialog.findChild<QListWidget*>();
            QCOMPARE(Texts(*families), (QStringList{u"DejaVu Sans"_s, u"DejaVu Sans Mono"_s}));
            QTest::keyClicks(Labelled<QLineEdit>(dialog, u"Search:"_s), u"mono"_s);
            QCOMPARE(Texts(*families), QStringList{u"DejaVu Sans Mono"_s});
            QTest::keyClick(Labelled<QLineEdit>(dialog, u"Search:"_s), Qt::Key_A,
                            Qt::ControlModifier);
            QTest::keyClick(Labelled<QLineEdit>(dialog, u"Search:"_s), Qt::Key_Delete);
            families->setCurrentRow(0);
            auto* const styles = dialog.findChild<QTreeWidget*>();
            QCOMPARE(styles->topLevelItemCount(), 2);
            styles->setCurrentItem(styles->topLevelItem(1));
            QCOMPARE(styles->currentItem()->text(1), u"700"_s);
            QCOMPARE(dialog.Path(), fonts.filePath(u"b.ttf"_s));
            dialog.findChild<QDoubleSpinBox*>()->setValue(30);
            auto* const scripts = Labelled<QComboBox>(dialog, u"Script:"_s);
            scripts->setCurrentText(u"Hiragana"_s);
            QCOMPARE(families->count(), 0);
            QVERIFY(!Ok(dialog)->isEnabled());
            scripts->setCurrentText(u"Greek"_s);
            QCOMPARE(families->count(), 2);
            QCOMPARE(dialog.Path(), fonts.filePath(u"b.ttf"_s)); // chosen again
            Ok(dialog)->click();
        }
        const FontDialog dialog(nullptr);
        QCOMPARE(dialog.Path(), fonts.filePath(u"b.ttf"_s));
        QCOMPARE(dialog.ChosenSize().value, 30);
        FontDatabase::SetCurrent(nullptr);
    }

    // Of each family, until another style of it is chosen.
    void UsualStylesAreChosenFirst()
    {
        auto database = std::make_shared<FontDatabase>();
        database->Build(
            {QStringLiteral(SYSTEM_FONTS)}, [](int) {}, [](int) { return true; });
        FontDatabase::SetCurrent(database);
        FontDialog dialog(nullptr);
        auto* const families = dialog.findChild<QListWidget*>();
        auto* const styles = dialog.findChild<QTreeWidget*>();
        const auto choose = [families](const QString& name) {
            families->setCurrentItem(families->findItems(name, Qt::MatchExactly).constFirst());
        };
        choose(u"DejaVu Sans"_s);
        QVERIFY(dialog.Path().endsWith(u"/DejaVuSans.ttf"_s));
        const auto light = styles->findItems(u"ExtraLight"_s, Qt::MatchExactly);
        styles->setCurrentItem(light.constFirst());
        QVERIFY(dialog.Path().endsWith(u"/DejaVuSans-ExtraLight.ttf"_s));
        choose(u"DejaVu Serif"_s);
        QVERIFY(dialog.Path().endsWith(u"/DejaVuSerif.ttf"_s));
        QStringList columns;
        for (int column = 0; column < styles->columnCount(); ++column)
            columns.append(styles->currentItem()->text(column));
        QCOMPARE(columns, (QStringList{u"Book"_s, u"400"_s, u"normal"_s, u"upright"_s}));
        FontDatabase::SetCurrent(nullptr);
    }
};

GLYPHOR_TEST(TestFontDialog)

} // namespace Glyphor

#include "tst_font_dialog.moc"
