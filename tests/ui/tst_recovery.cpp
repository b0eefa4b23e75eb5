#include "support/rows.h"
#include "support/test_main.h"
#include "ui/dialogs/recovery_dialog.h"
#include "ui/document/recovery.h"
#include "ui/document/recovery_slot.h"
#include "ui/window_fixture.h"

#include <QDataStream>
#include <QDir>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>

namespace Glyphor {

using Test::BoxAnswer;
using Test::DialogAnswer;

// Work that was not saved when its window was lost.
class TestRecovery : public QObject, protected Test::WindowFixture
{
    Q_OBJECT

    const QString kept_ = RecoverySlot::DefaultFolder();

    // With something of all that a font has.
    static std::unique_ptr<Font> MakeFont(FontFormat format, EncodingType encoding)
    {
        auto font = Test::MakeSampleFont(format, encoding);
        font->SetToolText(u"tool \u20AC"_s);
        font->SetMaxWidth(77);
        font->SetHasKerning(true);
        font->LeaveOut(0xFFFF);
        CodeSet enabled = font->EnabledCodes();
        enabled.Set(0x5000, true); // there is no character
        font->SetEnabledCodes(enabled);
        Character& first = *font->FindChar('A');
        first.kerning = {{'B', -2}, {0x80, 300}};
        first.info.xPos = -3;
        first.info.yPos = 4;
        first.label = std::make_shared<CharacterLabel>(CharacterLabel{u"HEART"_s, u"heart.png"_s});
        first.bitmap->InsertColumnRight(); // frames are what edits left them
        return font;
    }

    static QByteArray Everything(const Font& font)
    {
        QByteArray bytes = Test::Snapshot(font);
        QDataStream rest(&bytes, QIODevice::Append);
        FontCopy(font).WriteRest(rest);
        return bytes;
    }

    [[nodiscard]] QStringList Files() const { return QDir(kept_).entryList(QDir::Files); }

    // As a window does that is lost afterwards.
    void Leave(const Font& font, const QString& path) const
    {
        KeptSession session;
        session.path = path;
        session.log = {u"[Font]: Done"_s};
        QCOMPARE(RecoverySlot::Create(kept_)->Keep(FontCopy(font), session), QString());
    }

    void KeepSteps(int count) const
    {
        for (int step = 0; step < count; ++step)
            Trigger(ActionType::ShiftLeft);
    }

    // Has the offer answered by the button with this text.
    void Answer(const QString& text) const
    {
        const DialogAnswer<RecoveryDialog> answer([&](RecoveryDialog& dialog) {
            for (auto* const button : dialog.findChildren<QPushButton*>()) {
                if (button->text() == text)
                    button->click();
            }
        });
        window_->CurrentRecovery().Offer(false);
        QVERIFY(answer.wasAsked);
    }

private Q_SLOTS:
    void init() { OpenWindow(); }
    void cleanup()
    {
        CloseWindow();
        QVERIFY(QDir(QFileInfo(kept_).path()).removeRecursively());
    }

    void FontsComeBack_data()
    {
        const Test::Rows<FontFormat, EncodingType, int> row;
        for (const FormatNameRow& format : FormatNameTable) {
            for (const auto encoding : {EncodingType::Unicode, EncodingType::ShiftJis}) {
                if (IsValidCombination(format.format, encoding))
                    row(QTest::addRow("format %d, encoding %d", int(format.format), int(encoding)),
                        format.format, encoding, 3);
            }
        }
        row("without rows", FontFormat::AA2, EncodingType::Unicode, 0);
        row("without characters", FontFormat::AA2, EncodingType::Unicode, -1);
    }

    void FontsComeBack()
    {
        const auto [format, encoding, height] = Test::Row<FontFormat, EncodingType, int>();
        auto font = MakeFont(format, encoding);
        if (height < 0)
            font = std::make_unique<Font>(format, encoding);
        else
            font->SetHeight(quint8(height));
        Leave(*font, u"/some/font.xbf"_s);
        const auto slots = RecoverySlot::Abandoned(kept_);
        QCOMPARE(slots.size(), std::size_t(1));
        QCOMPARE(slots.front()->Session().path, u"/some/font.xbf"_s);
        QCOMPARE(Everything(*slots.front()->ReadFont()), Everything(*font));
    }

    // Only what no living window holds is offered, to one window.
    void SlotsAreHeld()
    {
        auto slot = RecoverySlot::Create(kept_);
        const auto font = MakeFont(FontFormat::AA2, EncodingType::Unicode);
        QVERIFY(slot->Keep(FontCopy(*font), {}).isEmpty());
        QVERIFY(slot->Keep(FontCopy(*font), {}).isEmpty());
        QCOMPARE(Files().size(), 3); // one copy of two files, and the lock
        QVERIFY(RecoverySlot::Abandoned(kept_).empty());
        slot.reset();
        {
            const auto slots = RecoverySlot::Abandoned(kept_);
            QCOMPARE(slots.size(), std::size_t(1));
            QVERIFY(RecoverySlot::Abandoned(kept_).empty());
        }
        RecoverySlot::Abandoned(kept_).front()->Discard();
        QVERIFY(!QDir(kept_).exists());
    }

    // Killed while it wrote, at several places.
    void HalfCopies_data()
    {
        const Test::Rows<QString, bool, bool> row; // a file, whether it is gone, what is left
        row("next font", u"%1-2.sif"_s, false, true);
        row("next font and state", u"%1-2.state"_s, false, true);
        row("font before", u"%1-1.sif"_s, true, false);
        row("only the lock", u"%1-1.state"_s, true, false);
    }

    void HalfCopies()
    {
        const auto [name, isGone, isOffered] = Test::Row<QString, bool, bool>();
        Leave(*MakeFont(FontFormat::AA2, EncodingType::Unicode), {});
        const QString id = Files().first().section(u'-', 0, 0).section(u'.', 0, 0);
        const QString path = kept_ + u'/' + name.arg(id);
        if (isGone)
            QVERIFY(QFile::remove(path));
        else
            Test::WriteAll(path, "GYK");
        const auto slots = RecoverySlot::Abandoned(kept_);
        QCOMPARE(!slots.empty(), isOffered);
        if (isOffered)
            QCOMPARE(slots.front()->ReadFont()->Name(), u"8 Tests/Plain 1.5"_s);
    }

    // Nothing is kept of what is saved, undone or given up.
    void CopiesComeAndGo_data()
    {
        const Test::Rows<int> row;
        row("saved", 0);
        row("undone", 1);
        row("closed", 2);
        row("another font", 3);
    }

    void CopiesComeAndGo()
    {
        const auto [end] = Test::Row<int>();
        OpenSample();
        QSignalSpy copies(&window_->CurrentRecovery(), &Recovery::Kept);
        KeepSteps(49);
        QCoreApplication::processEvents();
        QVERIFY(Files().isEmpty());
        KeepSteps(1);
        QVERIFY(copies.wait());
        QCOMPARE(Files().size(), 3);
        const BoxAnswer answer(QMessageBox::No);
        if (end == 0)
            Trigger(ActionType::SaveFont);
        for (int step = 0; end == 1 && step < 50; ++step)
            Trigger(WindowCommand::Undo);
        if (end == 2)
            QVERIFY(window_->close());
        if (end == 3)
            QVERIFY(Open(Path("sample.sif")));
        QVERIFY(Files().isEmpty());
    }

    // After some time too, and while the one before is being written.
    void CopiesFollowTheClock()
    {
        OpenSample();
        window_->CurrentRecovery().SetInterval(1);
        QSignalSpy copies(&window_->CurrentRecovery(), &Recovery::Kept);
        KeepSteps(1);
        QVERIFY(copies.wait());
        KeepSteps(1);
        QVERIFY(copies.wait());
        const QByteArray font = Test::Snapshot(CurrentFont());
        CloseWindow();
        QCOMPARE(Test::Snapshot(*RecoverySlot::Abandoned(kept_).front()->ReadFont()), font);
        OpenWindow();
    }

    // Said once, and the work goes on.
    void FoldersThatTakeNothing()
    {
        Test::WriteAll(QFileInfo(kept_).path(), "in the way");
        OpenSample();
        window_->CurrentRecovery().SetInterval(1);
        const QSignalSpy copies(&window_->CurrentRecovery(), &Recovery::Kept);
        QSignalSpy failures(&window_->CurrentRecovery(), &Recovery::Failed);
        KeepSteps(1);
        QVERIFY(failures.wait());
        QVERIFY(window_->statusBar()->currentMessage().startsWith(u"Unsaved changes can't be"_s));
        KeepSteps(60);
        QTest::qWait(50);
        QCOMPARE(failures.size(), 1);
        QVERIFY(QFile::remove(QFileInfo(kept_).path()));
        QTRY_COMPARE(copies.size(), 1);
    }

    void Offers()
    {
        Leave(*MakeFont(FontFormat::AA2, EncodingType::Unicode), Path("one.c"));
        Answer(u"&Later"_s);
        QCOMPARE(Files().size(), 3);
        Answer(u"&Restore"_s);
        QCOMPARE(session_->Path(), Path("one.c"));
        QVERIFY(window_->isWindowModified() && IsEnabled(ActionType::SaveFont));
        QCOMPARE(session_->Stack().LogLines(), QStringList{u"[Font]: Done"_s});
        // It is kept on, and goes when it is saved.
        QVERIFY(RecoverySlot::Abandoned(kept_).empty());
        QCOMPARE(Files().size(), 3);
        Trigger(ActionType::SaveFont);
        QVERIFY(QFile::exists(Path("one.c")) && Files().isEmpty());
        Leave(CurrentFont(), Path("two.c"));
        Answer(u"&Discard"_s);
        QVERIFY(Files().isEmpty());
        BoxAnswer none(QMessageBox::Ok);
        Trigger(WindowCommand::RecoverFonts);
        QVERIFY(none.text.endsWith(u"There are no unsaved fonts."_s));
    }

    // The copy is damaged: the font at work stays, and so does the copy.
    void DamagedCopies()
    {
        OpenSample();
        Leave(*MakeFont(FontFormat::AA2, EncodingType::Unicode), Path("one.c"));
        const QString name = QDir(kept_).entryList({u"*.sif"_s}).first();
        Test::WriteAll(kept_ + u'/' + name, "GUIP");
        const BoxAnswer failure(QMessageBox::Ok);
        Answer(u"&Restore"_s);
        QVERIFY(failure.wasAsked);
        QVERIFY(session_->Path().endsWith(u"sample.sif"_s) && !window_->isWindowModified());
        QCOMPARE(Files().size(), 3);
    }

    void KilledWindows()
    {
        WriteSample(FontFormat::AA4, Path("sample.sif"));
        QStringList options = {Path("sample.sif")};
        for (int step = 0; step < 50; ++step)
            options += {u"-editchar"_s, u"SHIFTL"_s, u"0x41"_s};
        options += {u"-editfont"_s, u"INSTOP"_s};
        QProcess other;
        other.start(QStringLiteral(GLYPHOR_PROGRAM), options);
        QVERIFY(other.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(!QDir(kept_).entryList({u"*.state"_s}).isEmpty(), 20000);
        QVERIFY(RecoverySlot::Abandoned(kept_).empty());
        other.kill();
        QVERIFY(other.waitForFinished());
        Answer(u"&Restore"_s);
        QCOMPARE(session_->Path(), Path("sample.sif"));
        QCOMPARE(int(CurrentFont().Metrics().height), 4);
        QVERIFY(window_->isWindowModified());
        // The file is still the one that was opened.
        Trigger(ActionType::SaveFont);
        QVERIFY(!window_->isWindowModified());
    }
};

GLYPHOR_TEST(TestRecovery)

} // namespace Glyphor

#include "tst_recovery.moc"
