#include "app/setting.h"

#include "app/engine_texts.h"

#include <QDataStream>
#include <QDir>

namespace Glyphor {

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
