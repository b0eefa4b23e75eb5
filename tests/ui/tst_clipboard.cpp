#include "files/copied_characters.h"
#include "support/rows.h"
#include "support/test_main.h"
#include "ui/dialogs/code_dialogs.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/editor/pixel_selection.h"
#include "window_fixture.h"

#include <QBuffer>
#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QStatusBar>

namespace Glyphor {

class TestClipboard : public QObject, Test::WindowFixture
{
    Q_OBJECT

    void Press(Qt::Key key) const
    {
        QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
    }

    [[nodiscard]] PixelSelection& Selection() const
    {
        return *window_->Editor().findChild<PixelSelection*>();
    }

    static QByteArray Png(QSize size)
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::white);
        picture.setPixel(1, 1, qRgb(0, 0, 0));
        QByteArray bytes;
        QBuffer buffer(&bytes);
        picture.save(&buffer, "PNG");
        return bytes;
    }

    static void Offer(const QString& type, const QByteArray& bytes)
    {
        auto* const data = new QMimeData;
        data->setData(type, bytes);
        QGuiApplication::clipboard()->setMimeData(data);
    }

private Q_SLOTS:
    void init()
    {
        OpenWindow();
        OpenSample(FontFormat::AA4);
        window_->Table().setFocus();
    }
    void cleanup() { CloseWindow(); }

    // By the keys, and where there was none.
    void CharactersGoElsewhere()
    {
        const QByteArray before = Test::Snapshot(CurrentFont());
        Press(Qt::Key_C);
        QVERIFY(QGuiApplication::clipboard()->mimeData()->hasFormat(u"image/png"_s));
        window_->Table().SelectCode(0x45);
        QCOMPARE(window_->Table().CurrentCode(), 0x45);
        Press(Qt::Key_V);
        QVERIFY(*CurrentFont().FindChar(0x45) == *CurrentFont().FindChar('A'));
        QCOMPARE(window_->statusBar()->currentMessage(), u"Pasted characters: 1."_s);
        Trigger(WindowCommand::Undo);
        QCOMPARE(Test::Snapshot(CurrentFont()), before);
        window_->Table().SelectCode('A');
        Press(Qt::Key_X);
        QVERIFY(CurrentFont().FindChar('A') == nullptr);
        Press(Qt::Key_V);
        QCOMPARE(Test::Snapshot(CurrentFont()), before);
    }

    void OtherFontsHaveTheirDepth()
    {
        window_->Table().selectAll();
        const int count = CurrentFont().ExistingCodes().Count();
        Trigger(WindowCommand::Copy);
        CloseWindow();
        OpenWindow();
        OpenSample(FontFormat::Standard);
        window_->Table().SelectCode('A');
        Trigger(WindowCommand::Paste);
        QCOMPARE(
            window_->statusBar()->currentMessage(),
            u"Pasted characters: %1. Their pixels were converted from 4 to 1 bits."_s.arg(count));
        QCOMPARE(int(CurrentFont().FindChar('B')->info.xPos), -5);
    }

    void PixelsGoElsewhere_data()
    {
        const Test::Rows<QPoint, QRect, int> row; // the selected pixel, where they go, and to what
        row("onto a pixel", {2, 0}, {2, 0, 2, 2}, 2);
        row("where there is room", {4, 1}, {3, 0, 2, 2}, 3);
    }

    void PixelsGoElsewhere()
    {
        const auto [pixel, area, column] = Test::Row<QPoint, QRect, int>();
        CharBitmapView& editor = window_->Editor();
        window_->Table().SelectCode('B');
        Character& character = *CurrentFont().FindChar('B');
        character.info.yPos = 0;
        for (int index = 0; index < 10; ++index)
            character.bitmap->SetPixelIndex(index % 5, index / 5, index + 1);
        window_->ActionChanged(nullptr);
        editor.setFocus();
        editor.SelectItem(editor.CellItem(0, 0));
        QTest::keyClick(&editor, Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(&editor, Qt::Key_Down, Qt::ShiftModifier);
        Press(Qt::Key_X);
        const CharBitmap& bitmap = *CurrentFont().FindChar('B')->bitmap;
        QVERIFY(bitmap.GetPixelIndex(0, 0) == 0 && bitmap.GetPixelIndex(1, 1) == 0);
        QTest::keyClick(&editor, Qt::Key_Escape);
        editor.SelectItem(editor.CellItem(pixel.x(), pixel.y()));
        Press(Qt::Key_V);
        QCOMPARE(Selection().Area(), area);
        const CharBitmap& pasted = *CurrentFont().FindChar('B')->bitmap;
        QCOMPARE(pasted.GetPixelIndex(column, 0), 1);
        QCOMPARE(pasted.GetPixelIndex(column + 1, 1), 7);
        QCOMPARE(history_->count(), 2);
    }

    void PicturesBecomeCharacters_data()
    {
        const Test::Rows<QString, QByteArray, QString> row;
        const QString type = u"application/x-glyphor-characters"_s;
        const QString title = u"Pasting is not possible!: "_s;
        row("picture", u"image/png"_s, Png({3, 2}), QString());
        row("largest", u"image/png"_s, Png({255, 255}), QString());
        row("too large", u"image/png"_s, Png({256, 3}),
            title +
                u"The picture on the clipboard has 256 x 3 pixels; a character has 255 x 255 at "
                "most."_s);
        row("damaged", u"image/png"_s, Png({3, 2}).chopped(20),
            title + u"The picture on the clipboard can't be read."_s);
        row("text", u"text/plain"_s, "A",
            title + u"The clipboard has neither characters nor a picture."_s);
        row("damaged characters", type, "GlyphorChars",
            title + u"The characters on the clipboard can't be read."_s);
    }

    void PicturesBecomeCharacters()
    {
        const auto [type, bytes, fault] = Test::Row<QString, QByteArray, QString>();
        Offer(type, bytes);
        const int count = CurrentFont().ExistingCodes().Count();
        window_->Table().SelectCode(0x46);
        if (!fault.isEmpty()) {
            Test::BoxAnswer box(QMessageBox::Ok);
            Trigger(WindowCommand::Paste);
            QCOMPARE(box.text, fault);
            QCOMPARE(CurrentFont().ExistingCodes().Count(), count);
            return;
        }
        Trigger(WindowCommand::Paste);
        const Character& character = *CurrentFont().FindChar(0x46);
        QCOMPARE(character.bitmap->GetPixelIndex(1, 1), 15);
        QCOMPARE(character.bitmap->GetPixelIndex(0, 1), 0);
    }

    void TextFieldsKeepTheirKeys()
    {
        auto* const field = window_->findChild<QLineEdit*>();
        field->setFocus();
        field->setText(u"sample"_s);
        field->selectAll();
        Press(Qt::Key_C);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"sample"_s);
    }

    void Duplicates_data()
    {
        const Test::Rows<QString, bool> row;
        row("to the next", u"0x42"_s, true);
        row("far away", u"U+E000"_s, true);
        row("to itself", u"A"_s, false);
        row("beyond", u"0xFFFF"_s, false);
        row("no code", u"AA"_s, false);
    }

    // "A", "B" and what is far behind them keep their distances, and do not overwrite each other.
    void Duplicates()
    {
        const auto [code, isPossible] = Test::Row<QString, bool>();
        window_->Table().selectAll();
        const CopiedCharacters before =
            CopyCharacters(CurrentFont(), CurrentFont().ExistingCodes());
        const Test::DialogAnswer<DuplicateDialog> answer([text = code](DuplicateDialog& dialog) {
            dialog.findChild<QLineEdit*>()->setText(text);
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        Trigger(ActionType::CopyTo);
        QVERIFY(answer.wasAsked);
        QCOMPARE(history_->count(), isPossible ? 1 : 0);
        if (!isPossible)
            return;
        const int target = window_->Table().CurrentCode();
        for (const CopiedCharacter& each : before.characters) {
            const Character* const copy = CurrentFont().FindChar(quint16(target + each.code - 'A'));
            QVERIFY(copy != nullptr);
            QCOMPARE(copy->bitmap->DataAsList(), each.bytes);
        }
    }
};

GLYPHOR_TEST(TestClipboard)

} // namespace Glyphor

#include "tst_clipboard.moc"
