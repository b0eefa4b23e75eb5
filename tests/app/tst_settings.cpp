#include "app/settings.h"
#include "support/test_main.h"

#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Defaults_data()
    {
        QTest::addColumn<QByteArray>("store");
        QTest::newRow("no store") << QByteArray();
        QTest::newRow("wrong values")
            << QByteArray("[General]\nHideLegacy=perhaps\nNumeralSystem=many\nLogActions=\n"
                          "CreateLogFile=7\nUseSysLineEndings=@Rect(0 0 1 1)\nLineEndings=x\n"
                          "AdditionalFontDirs=@Rect(1 2 3 4)\nSearchDirsRecursively=yes\n"
                          "UseIncludedBitmaps=@Variant(\\0\\0\\0)\n"
                          "CommandDialogData=@Variant(\\0\\0\\0\\x7f\\0\\0)\nMainWindowData=5\n");
        QTest::newRow("no settings at all") << QByteArray("\x7f"
                                                          "ELF\x01\n=[[\n\\x\0\n",
                                                          13);
    }

    void Defaults()
    {
        QFETCH(const QByteArray, store);
        const Settings settings(Store(store));
        QCOMPARE(settings.hideLegacy.value(), true);
        QCOMPARE(settings.numeralSystem.value(), 1);
        QCOMPARE(settings.lineEndings.value(), 0);
        QCOMPARE(settings.additionalFontDirs.value(), QStringList());
        QCOMPARE(settings.commandDialog.load(), CommandDialogData());
        QCOMPARE(settings.mainWindow.load(), WindowData());
    }

    // Of another layout, cut, or of another type.
    void BrokenRecordsGiveTheDefaults()
    {
        const EnableRangeDialogData record{"geometry", 65, 90};
        const auto restored = [](const QByteArray& bytes) {
            EnableRangeDialogData read{"other", 1, 2};
            QDataStream stream(bytes);
            stream >> read;
            return read;
        };
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << record;
        QCOMPARE(restored(bytes), record);
        for (qsizetype size = 0; size < bytes.size(); ++size)
            QCOMPARE(restored(bytes.first(size)), EnableRangeDialogData());
        bytes[3] = 2; // the layout
        QCOMPARE(restored(bytes), EnableRangeDialogData());
        {
            Settings settings(Store({}));
            settings.fontGenerationDialog.save({});
            settings.enableRangeDialog.save(record);
            settings.setValue(u"FontDialogData"_s, QVariant::fromValue(record));
            settings.setValue(u"PreferencesDialogData"_s, u"text"_s);
        }
        const Settings settings(Reopen());
        QCOMPARE(settings.enableRangeDialog.load(), record);
        QCOMPARE(settings.fontGenerationDialog.load(), FontGenerationDialogData());
        QCOMPARE(settings.fontDialog.load(), FontDialogData());
        QCOMPARE(settings.preferencesDialog.load(), PreferencesDialogData());
    }

    // What a newer release stored is still there when an older one has written.
    void KeepsWhatIsNotUnderstood()
    {
        {
            Settings settings(Store({}));
            settings.enableRangeDialog.save({"a;\"b,\xff\n", 65, 90});
            settings.setValue(u"ABoxData"_s, settings.value(u"EnableRangeDialogData"_s));
        }
        QByteArray newer = Test::ReadAll(Path());
        const qsizetype second = newer.indexOf("EnableRangeDialogData");
        const QByteArray name = "nableRangeDialog::";
        QVERIFY(newer.indexOf(name) < second && newer.contains("Data\\0\\0\\0\\0\\x1"));
        newer.replace(newer.indexOf(name), name.size(), "quallyLongName::XX");
        newer.replace(newer.lastIndexOf("\\0\\0\\0\\x1\\0"), 11, "\\0\\0\\0\\x2\\0");
        // Under another name, as the toolkit remembers what it read and wrote.
        const QString path = folder_.filePath(u"newer.ini"_s);
        Test::WriteAll(path, newer);
        const auto line = [](const QByteArray& text, const QByteArray& key) {
            const qsizetype start = text.indexOf(key);
            return text.sliced(start, text.indexOf('\n', start) - start);
        };
        for (int round = 0; round < 2; ++round) {
            Settings settings(std::make_unique<QSettings>(path, QSettings::IniFormat));
            QCOMPARE(settings.enableRangeDialog.load(), EnableRangeDialogData());
            settings.hideLegacy.setValue(round == 0);
        }
        const QByteArray after = Test::ReadAll(path);
        QVERIFY(after.contains("HideLegacy=false"));
        QVERIFY2(!after.contains("@Invalid"), after.constData());
        for (const char* const key : {"ABoxData", "EnableRangeDialogData"})
            QCOMPARE(line(after, key), line(newer, key));
        // Until the dialog is used.
        {
            Settings settings(std::make_unique<QSettings>(path, QSettings::IniFormat));
            EnableRangeDialogData record = settings.enableRangeDialog.load();
            record.first = 5;
            settings.enableRangeDialog.save(record);
        }
        QCOMPARE(Settings(std::make_unique<QSettings>(path, QSettings::IniFormat))
                     .enableRangeDialog.load()
                     .first,
                 5);
    }

    void LineEndings()
    {
        for (const auto& [choice, ending] :
             {std::pair(0, "\r\n"_ba), {1, "\r"_ba}, {2, "\n"_ba}, {77, "\r\n"_ba}}) {
            Settings settings(Store({}));
            settings.lineEndings.setValue(choice);
            QCOMPARE(settings.LineEnding(), "\r\n"_ba); // the system's
            settings.useSysLineEndings.setValue(false);
            QCOMPARE(settings.LineEnding(), ending);
        }
    }

private:
    std::unique_ptr<QSettings> Store(const QByteArray& contents)
    {
        Test::WriteAll(Path(), contents);
        return Reopen();
    }

    std::unique_ptr<QSettings> Reopen()
    {
        return std::make_unique<QSettings>(Path(), QSettings::IniFormat);
    }

    [[nodiscard]] QString Path() const { return folder_.filePath(u"settings.ini"_s); }

    QTemporaryDir folder_;
};

GLYPHOR_TEST(TestSettings)

} // namespace Glyphor

#include "tst_settings.moc"
