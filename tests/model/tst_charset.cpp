#include "model/charset.h"
#include "support/rows.h"
#include "support/test_main.h"

#include <QSet>
#include <QTest>

namespace Glyphor {

class TestCharset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SetsHavePrintableCharactersAlone()
    {
        QSet<QString> names;
        for (const Charset& charset : Charsets()) {
            const QString name = CharsetName(charset);
            QVERIFY2(!names.contains(name.toLower()), qUtf8Printable(name));
            names.insert(name.toLower());
            QVERIFY(!CharsetDescription(charset).isEmpty());
            const CodeSet codes = CodesOf(charset);
            QVERIFY2(codes.Count() >= 95, qUtf8Printable(name));
            for (const quint16 code : codes) {
                const bool isPrintable = QChar(code).isPrint() || code == QChar::SoftHyphen;
                QVERIFY2(isPrintable, qUtf8Printable(name + u" "_s + QString::number(code, 16)));
            }
        }
    }

    void Contents_data()
    {
        // Name, characters in the set, characters that it leaves out, number or 0 for any.
        const Test::Rows<QString, QString, QString, int> row;
        row("ASCII", u"ASCII"_s, u" ~"_s, u"\x7f"_s, 95);
        row("a standard", u"latin1"_s, u"\xa0ÿ\xad"_s, u"\x80€"_s, 191);
        row("the last standard", u"cp1258"_s, u"₫"_s, u"ẞ"_s, 0);
        row("German", u"De"_s, u"äÄßẞ„“0"_s, u"éŁ"_s, 0);
        row("Russian", u"ru"_s, u"ёЁ«»"_s, u"і"_s, 0);
        row("Ukrainian", u"uk"_s, u"іІґҐ"_s, u"ё"_s, 0);
        row("Vietnamese", u"vi"_s, u"ệỆ"_s, u"ß"_s, 0);
        row("Turkish", u"tr"_s, u"ıİiI"_s, u"ä"_s, 0);
        row("Greek", u"el"_s, u"ςΣΐΈ"_s, u"ὰ"_s, 0);
        row("Hindi digits", u"hi"_s, u"०९9"_s, u"\u200d"_s, 0);
        row("Georgian without capitals", u"ka"_s, u"ა"_s, u"Ა"_s, 0);
        row("Japanese", u"ja"_s, u"ヴ鬱"_s, u"龟"_s, 0);
        row("a language with its parent's", u"nb"_s, u"åÅ"_s, u"ß"_s, 0);
        row("a script", u"SR_latn"_s, u"ždŽD"_s, u"ж"_s, 0);
    }

    void Contents()
    {
        const auto [name, in, out, count] = Test::Row<QString, QString, QString, int>();
        const Charset* charset = FindCharset(name);
        QVERIFY(charset != nullptr);
        const CodeSet codes = CodesOf(*charset);
        for (const QChar character : in)
            QVERIFY2(codes.Test(character.unicode()), qUtf8Printable(QString(character)));
        for (const QChar character : out)
            QVERIFY2(!codes.Test(character.unicode()), qUtf8Printable(QString(character)));
        if (count != 0)
            QCOMPARE(codes.Count(), count);
    }

    void UnknownNames()
    {
        for (const QString& name : {u""_s, u"latin"_s, u"ascii "_s, u"xx"_s})
            QVERIFY(FindCharset(name) == nullptr);
    }
};

GLYPHOR_TEST(TestCharset)

} // namespace Glyphor

#include "tst_charset.moc"
