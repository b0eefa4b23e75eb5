#include "app/critical_exception.h"
#include "app/file.h"
#include "app/file_name.h"
#include "app/file_system.h"
#include "app/settings.h"
#include "support/rows.h"
#include "support/test_main.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QUrl>

#include <sys/stat.h>
#include <unistd.h>

namespace Glyphor {

class TestFileName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        folder_ = std::make_unique<QTemporaryDir>();
        raw_ = folder_->filePath(FileNameOf("\xFF"
                                            "dir"));
        QCOMPARE(::mkdir(BytesOf(raw_).constData(), 0700), 0);
    }

    void cleanup() { Test::RemoveAll(folder_->path()); }

    void CharactersStay()
    {
        for (char32_t code = 1; code <= QChar::LastValidCodePoint; ++code) {
            if (QChar::isSurrogate(code))
                continue;
            const QString text = QString::fromUcs4(&code, 1);
            const QByteArray bytes = text.toUtf8();
            if (FileNameOf(bytes) != text || BytesOf(text) != bytes || HasRawBytes(text))
                QFAIL(qPrintable(QString::number(code, 16)));
        }
    }

    // Every string of two bytes, and random ones that are often almost UTF-8.
    void BytesSurvive()
    {
        const auto survives = [](const QByteArray& bytes) {
            const QString name = FileNameOf(bytes);
            return BytesOf(name) == bytes && HasRawBytes(name) != bytes.isValidUtf8();
        };
        for (int pair = 0; pair < 0x10000; ++pair) {
            const QByteArray bytes = {1, char(pair)};
            QVERIFY2(survives(bytes + char(pair >> 8)), bytes.toHex().constData());
        }
        QRandomGenerator random(1);
        const QByteArray frequent =
            "a/.\x7F\x80\x9F\xA0\xBF\xC0\xC2\xE0\xED\xEF\xBB\xF0\xF4\xF5\xFF\xB2";
        for (int count = 0; count < 50'000; ++count) {
            QByteArray bytes(random.bounded(12), '\0');
            for (char& byte : bytes)
                byte = frequent[random.bounded(int(frequent.size()))];
            QVERIFY2(survives(bytes), bytes.toHex().constData());
        }
    }

    void Names_data()
    {
        const Test::Rows<QByteArray, QString> row;
        const auto raw = [](std::initializer_list<int> bytes) {
            QString name;
            for (const int byte : bytes)
                name += QChar(0xDC00 + byte);
            return name;
        };
        row("Latin 1", "caf\xE9.c", u"caf"_s + raw({0xE9}) + u".c"_s);
        row("a raw byte in UTF-8", "\xED\xB2\x80", raw({0xED, 0xB2, 0x80}));
        row("too long", "\xC0\xAF", raw({0xC0, 0xAF}));
        row("cut", "\xE4\xBA/x", raw({0xE4, 0xBA}) + u"/x"_s);
        row("byte order mark",
            "\xEF\xBB\xBF"
            "a\xFF\xEF\xBB\xBF",
            u"\ufeffa"_s + raw({0xFF}) + u"\ufeff"_s);
        row("ordinary", "a\xF0\x9F\x92\x80", u"a\U0001F480"_s);
    }

    void Names()
    {
        const auto [bytes, name] = Test::Row<QByteArray, QString>();
        QCOMPARE(FileNameOf(bytes), name);
        QCOMPARE(BytesOf(name), bytes);
        const auto url = QUrl::fromEncoded("file:///d/" + bytes.toPercentEncoding());
        QCOMPARE(FileNameOf(url), u"/d/"_s + (bytes.contains('/') ? FileNameOf(bytes) : name));
        const QString plain = WithoutRawBytes(name, u'_');
        QVERIFY(!HasRawBytes(plain) && plain.size() == name.size());
    }

    void OtherUrlsAreNoFiles()
    {
        QCOMPARE(FileNameOf(QUrl(u"file:///a%25E9%20b"_s)), u"/a%E9 b"_s);
        QCOMPARE(FileNameOf(QUrl::fromEncoded("http://x/a%E9")), QString());
        QCOMPARE(FileNameOf(QUrl::fromEncoded("file://host/a%E9")),
                 QUrl::fromEncoded("file://host/a%E9").toLocalFile());
    }

    void FilesAreReadAndReplaced()
    {
        const QString path = raw_ + u'/' + FileNameOf("caf\xE9.c");
        QCOMPARE(KindOf(path), FileKind::None);
        const auto failure = [](const QString& name) {
            try {
                (void)File(name).Contents();
            } catch (const CriticalException& error) {
                return error.Text();
            }
            return QString();
        };
        QVERIFY(failure(path).endsWith(u"/\\xFFdir/caf\\xE9.c could not be read: "
                                       "No such file or directory"_s));
        QVERIFY(failure(raw_).endsWith(u": Is a directory"_s));
        for (const QByteArray contents : {"first", "second one"}) {
            File(path).Replace(contents);
            QCOMPARE(File(path).Contents(), contents);
            QCOMPARE(SizeOfFile(path), contents.size());
        }
        QCOMPARE(EntriesOf(raw_, FileKind::Ordinary), QStringList{FileNameOf("caf\xE9.c")});
    }

    void PathsAreCompleted()
    {
        const QByteArray before = QFile::encodeName(QDir::currentPath());
        QCOMPARE(::chdir(BytesOf(raw_).constData()), 0);
        QCOMPARE(AbsolutePathOf(u"./a//b/../c"_s), raw_ + u"/a/c"_s);
        QCOMPARE(AbsolutePathOf(raw_ + u"/../x"_s), folder_->filePath(u"x"_s));
        QCOMPARE(CanonicalPathOf(u"."_s), CanonicalPathOf(raw_));
        QCOMPARE(::chdir(before.constData()), 0);
    }

    // As dialogs of the desktop give them.
    void LostBytesAreFound()
    {
        const QString real = raw_ + u'/' + FileNameOf("caf\xE9.c");
        const QString lost = folder_->filePath(u"\uFFFDdir/caf\uFFFD.c"_s);
        QCOMPARE(WithLostBytes(lost), raw_ + u"/caf\uFFFD.c"_s); // to be saved
        File(real).Replace("font");
        QCOMPARE(WithLostBytes(lost), real);
        File(raw_ + u'/' + FileNameOf("caf\xE8.c")).Replace("other");
        QCOMPARE(WithLostBytes(lost), raw_ + u"/caf\uFFFD.c"_s);
        File(raw_ + u"/caf\uFFFD.c"_s).Replace("itself");
        QCOMPARE(WithLostBytes(lost), raw_ + u"/caf\uFFFD.c"_s);
    }

    void SettingsKeepThem()
    {
        const auto store = [this](const char* name) {
            return std::make_unique<QSettings>(folder_->filePath(QString::fromUtf8(name)),
                                               QSettings::IniFormat);
        };
        const QStringList paths = {raw_, folder_->path(), u"file:x"_s, u"100%25"_s};
        FontGenerationDialogData record;
        record.patternPath = raw_;
        {
            Settings settings(store("s.conf"));
            settings.additionalFontDirs.setValue(paths);
            settings.fontGenerationDialog.save(record);
        }
        // The toolkit remembers what a file of this name had.
        QVERIFY(QFile::copy(folder_->filePath(u"s.conf"_s), folder_->filePath(u"t.conf"_s)));
        const Settings settings(store("t.conf"));
        QCOMPARE(settings.additionalFontDirs.value(), paths);
        QCOMPARE(settings.fontGenerationDialog.load(), record);
    }

private:
    std::unique_ptr<QTemporaryDir> folder_;
    QString raw_; // a directory
};

GLYPHOR_TEST(TestFileName)

} // namespace Glyphor

#include "tst_file_name.moc"
