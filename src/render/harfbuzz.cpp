#include "render/harfbuzz.h"

#include <QLibrary>

namespace Glyphor {

HarfBuzz::HarfBuzz(const QString& name)
{
    constexpr int interfaceVersion = 0;
    QLibrary library(name, interfaceVersion); // stays loaded
    const auto find = [&]<typename Function>(Function*& function, const char* symbol) {
        function = reinterpret_cast<Function*>(library.resolve(symbol));
        isLoaded_ = isLoaded_ && function != nullptr;
    };
#define GLYPHOR_FIND(function) find(function, #function)
    GLYPHOR_HARFBUZZ_FUNCTIONS(GLYPHOR_FIND);
#undef GLYPHOR_FIND
}

const HarfBuzz* HarfBuzz::Loaded()
{
    static const HarfBuzz harfBuzz(QStringLiteral("harfbuzz"));
    return harfBuzz.IsLoaded() ? &harfBuzz : nullptr;
}

} // namespace Glyphor
