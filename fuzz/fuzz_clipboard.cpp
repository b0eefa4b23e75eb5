// Reads any bytes as copied characters, and pastes them into a font of each format in turn.

#include "actions/paste_action.h"
#include "actions/session.h"
#include "app/critical_exception.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace Glyphor;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto copied = CharactersIn(bytes);
    if (!copied)
        return 0;
    for (int format = 0; format < FormatCount; ++format) {
        Session session;
        auto font = std::make_unique<Font>(FontFormat(format), EncodingType::Unicode);
        font->SetHeight(16);
        font->SetBaseline(12);
        session.ReplaceFont(std::move(font), {});
        try {
            PreparePaste(session, *copied, 'A').action->Run();
        } catch (const CriticalException&) { // refused, as it should be
        }
    }
    return 0;
}
