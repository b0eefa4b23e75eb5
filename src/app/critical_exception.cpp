#include "app/critical_exception.h"

namespace Glyphor {

using namespace Qt::StringLiterals;

QString CriticalException::DefaultTitle()
{
    return u"Critical error!"_s;
}

CriticalException::CriticalException(const QString& title, const QString& text, const Place& place)
    : title_(title), text_(text), place_(place), what_((title + u": "_s + text).toUtf8())
{}

} // namespace Glyphor
