#include "app/setting.h"

#include "app/engine_texts.h"
#include "app/file_name.h"

#include <QDataStream>
#include <QDir>
#include <QUrl>

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr auto StoredScheme = "file:"_L1;

// A directory may have a name that looks like a URL.
QString FromStored(const QString& text)
{
    if (!text.startsWith(StoredScheme))
        return text;
    QString path = FileNameOf(QUrl::fromEncoded(text.toUtf8()));
    return HasRawBytes(path) ? path : text;
}

} // namespace

std::optional<bool> ToSetting(const QVariant& stored, const bool*)
{
    // A text store gives back texts, and any other text would count as true.
    const QString text = stored.toString().toLower();
    if (text == u"true" || text == u"1")
        return true;
    if (text == u"false" || text == u"0")
        return false;
    return std::nullopt;
}

std::optional<int> ToSetting(const QVariant& stored, const int*)
{
    bool isNumber = false;
    const int number = stored.toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

std::optional<QStringList> ToSetting(const QVariant& stored, const QStringList*)
{
    if (!stored.canConvert<QStringList>())
        return std::nullopt;
    QStringList list = stored.toStringList();
    list.removeAll(QString());
    std::ranges::transform(list, list.begin(), FromStored);
    return list;
}

QVariant ToStored(const QStringList& paths)
{
    QStringList list = paths;
    for (QString& path : list) {
        if (HasRawBytes(path))
            path = StoredScheme + QLatin1StringView(BytesOf(path).toPercentEncoding("/"));
    }
    return list;
}

QVariant ValueOfText(const QString& text, const QStringList*)
{
    return text.split(QDir::listSeparator());
}

QString ValuesOf(const bool*)
{
    return Engine::tr("true or false");
}

QString ValuesOf(const int*)
{
    return Engine::tr("0, 1 or 2"); // what the numbers that a run heeds have
}

QString ValuesOf(const QStringList*)
{
    return Engine::tr("folders");
}

QDataStream& operator<<(QDataStream& out, const WindowData& data)
{
    return out << data.geometry << data.state;
}

QDataStream& operator>>(QDataStream& in, WindowData& data)
{
    in >> data.geometry >> data.state;
    if (in.status() != QDataStream::Ok)
        data = {};
    return in;
}

} // namespace Glyphor
