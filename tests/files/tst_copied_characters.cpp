#include "files/copied_characters.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QTest>

namespace Glyphor {

class TestCopiedCharacters : public QObject
{
    Q_OBJECT

    static CopiedCharacters Sample(FontFormat format)
    {
        const auto font = Test::MakeSampleFont(format);
        font->FindChar('B')->kerning = {{'A', -2}, {0xFFFD, 70000}};
        return CopyCharacters(*font, font->ExistingCodes());
    }

private Q_SLOTS:
    void ComeBackAsTheyWent()
    {
        for (int format = 0; format < FormatCount; ++format) {
            const CopiedCharacters copied = Sample(FontFormat(format));
            QVERIFY(copied.characters.size() >= 6);
            QVERIFY(CharactersIn(BytesOf(copied)) == copied);
        }
    }

    // Whatever is made of them has the bytes that its metrics ask for.
    void BytesOfOthersDoNoHarm()
    {
        for (const FontFormat format : {FontFormat::LegacyAA2, FontFormat::Framed}) {
            const QByteArray bytes = BytesOf(Sample(format));
            int accepted = 0;
            for (qsizetype at = 0; at < bytes.size(); ++at) {
                const auto cut = CharactersIn(bytes.first(at));
                QVERIFY(!cut || BytesOf(*cut) == bytes.first(at));
                for (const char value : {'\0', '\1', '\x7F', '\xFF'}) {
                    QByteArray changed = bytes;
                    changed[at] = value;
                    const auto read = CharactersIn(changed);
                    QVERIFY(!read || BytesOf(*read) == changed);
                    accepted += read ? 1 : 0;
                }
            }
            QVERIFY(accepted > 0);
            QVERIFY(!CharactersIn(bytes + '\0'));
            QByteArray newer = bytes;
            newer[newer.indexOf('\1')] = '\2';
            QVERIFY(!CharactersIn(newer));
        }
    }
};

GLYPHOR_TEST(TestCopiedCharacters)

} // namespace Glyphor

#include "tst_copied_characters.moc"
