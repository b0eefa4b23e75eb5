#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "texts/text_collector.h"
#include "texts/text_readers.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <functional>
#include <vector>

namespace Glyphor {

namespace {

using namespace Qt::StringLiterals;

// What the characters of an element are.
enum class XmlRole : quint8 {
    Frame,   // markup, with texts in elements below
    Text,    // what the reader looks for
    Code,    // markup of another format in a text
    Dropped, // nothing that counts, nor anything below
};

// Tells the role of an element, which the reader stands on, in an element of the given role.
using XmlRoles = std::function<XmlRole(const QXmlStreamReader&, XmlRole)>;

// Adds the character of an element like <byte value="x1b"/> or <cp hex="001B"/>.
void AddXmlCode(const QXmlStreamReader& xml, TextCollector& collector)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    const bool isQt = xml.name() == u"byte";
    if (!isQt && xml.name() != u"cp")
        return;
    QStringView value = attributes.value(isQt ? u"value"_s : u"hex"_s);
    const bool isDecimal = isQt && !value.startsWith(u'x');
    if (isQt && !isDecimal)
        value = value.sliced(1);
    bool isNumber = false;
    const uint code = value.toUInt(&isNumber, isDecimal ? 10 : 16);
    if (!isNumber || code > QChar::LastValidCodePoint || QChar::isSurrogate(code))
        collector.Fail(Engine::tr("The value \"%1\" is no character.").arg(Shown(value)),
                       int(xml.lineNumber()));
    collector.Add(code, int(xml.lineNumber()));
}

void CheckXmlEncoding(const QXmlStreamReader& xml, const TextCollector& collector)
{
    const QStringView encoding = xml.documentEncoding();
    if (!encoding.isEmpty() && !encoding.startsWith(u"UTF-", Qt::CaseInsensitive) &&
        encoding.compare(u"US-ASCII", Qt::CaseInsensitive) != 0)
        collector.Fail(
            Engine::tr("It is in the encoding %1; convert it to UTF-8.").arg(Shown(encoding)),
            int(xml.lineNumber()));
}

void ReadXmlText(QByteArrayView text, QStringView root, const XmlRoles& roleOf,
                 TextCollector& collector)
{
    QXmlStreamReader xml(QString::fromUtf8(text));
    std::vector<XmlRole> roles = {XmlRole::Frame};
    int line = 1; // where the token begins
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::StartDocument) {
            CheckXmlEncoding(xml, collector);
        } else if (token == QXmlStreamReader::StartElement) {
            if (roles.size() == 1 && xml.name() != root)
                collector.Fail(Engine::tr("Its first element is not %1.").arg(root),
                               int(xml.lineNumber()));
            if (roles.back() == XmlRole::Text)
                AddXmlCode(xml, collector);
            roles.push_back(roles.back() == XmlRole::Dropped ? XmlRole::Dropped
                                                             : roleOf(xml, roles.back()));
        } else if (token == QXmlStreamReader::EndElement) {
            roles.pop_back();
        } else if (token == QXmlStreamReader::Characters && roles.back() == XmlRole::Text) {
            collector.AddUtf8(xml.text().toUtf8(), line);
        }
        line = int(xml.lineNumber());
    }
    if (xml.hasError())
        collector.Fail(Engine::tr("It is not valid XML: %1").arg(Shown(xml.errorString())),
                       int(xml.lineNumber()));
}

// Knows by the attributes which elements have their texts in elements below.
class TsRoles
{
public:
    XmlRole operator()(const QXmlStreamReader& xml, XmlRole parent)
    {
        const QStringView name = xml.name();
        const QXmlStreamAttributes attributes = xml.attributes();
        if (name == u"message")
            hasForms_ = attributes.value(u"numerus"_s) == u"yes";
        if (parent == XmlRole::Text)
            return XmlRole::Text;
        const bool isTranslation = name == u"translation";
        if (isTranslation)
            isFinished_ = attributes.value(u"type"_s).isEmpty();
        else if (name != u"numerusform" && name != u"lengthvariant")
            return XmlRole::Frame;
        if (!isFinished_)
            return XmlRole::Dropped;
        const bool isFrame =
            (isTranslation && hasForms_) || attributes.value(u"variants"_s) == u"yes";
        return isFrame ? XmlRole::Frame : XmlRole::Text;
    }

private:
    bool hasForms_ = false;
    bool isFinished_ = false;
};

XmlRole XliffRoleOf(const QXmlStreamReader& xml, XmlRole parent)
{
    const QStringView name = xml.name();
    const auto isOneOf = [name](std::initializer_list<QStringView> names) {
        return std::ranges::find(names, name) != names.end();
    };
    if (parent == XmlRole::Frame) {
        if (isOneOf({u"alt-trans", u"matches"}))
            return XmlRole::Dropped;
        return name == u"target" ? XmlRole::Text : XmlRole::Frame;
    }
    if (parent == XmlRole::Code)
        return name == u"sub" ? XmlRole::Text : XmlRole::Code;
    return isOneOf({u"bpt", u"ept", u"it", u"ph"}) ? XmlRole::Code : XmlRole::Text;
}

} // namespace

void ReadTsText(QByteArrayView text, TextCollector& collector)
{
    ReadXmlText(text, u"TS", TsRoles(), collector);
}

void ReadXliffText(QByteArrayView text, TextCollector& collector)
{
    ReadXmlText(text, u"xliff", XliffRoleOf, collector);
}

} // namespace Glyphor
