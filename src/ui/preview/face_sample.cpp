#include "ui/preview/face_sample.h"

#include "app/critical_exception.h"
#include "app/user_interface.h"
#include "render/free_type_face.h"

#include <algorithm>
#include <new>

namespace Glyphor {

namespace {

constexpr int ReadableHeight = 60; // in pixels of the screen

// A text that the face has characters for.
QString SampleOf(const FreeTypeFace& face)
{
    constexpr qsizetype length = 40;
    const QString usual = FaceSample::tr("The quick brown fox 0123456789");
    QString own;
    bool hasUsual = false;
    face.WalkCharmap([&](quint16 code, FT_UInt) {
        hasUsual = hasUsual || code == u'a';
        if (QChar(code).isLetter() && own.size() < length)
            own.append(QChar(code));
        return !hasUsual;
    });
    return hasUsual ? usual : own;
}

} // namespace

FaceSample::~FaceSample()
{
    ShowNothing();
}

void FaceSample::ShowNothing()
{
    ShowFont(nullptr);
    font_.reset();
}

void FaceSample::ShowFace(const FreeTypeFace& face, ActionOpenFontArgs args)
{
    ShowNothing();
    const QString text = SampleOf(face);
    args.format = FontFormat::AA4;
    args.selection.emplace();
    for (const QChar character : text)
        args.selection->Set(character.unicode(), true);
    UserInterface silent;
    const InterfaceScope scope(silent);
    try {
        font_ = ReadFont(args);
    } catch (const CriticalException&) {
        return;
    } catch (const std::bad_alloc&) {
        return;
    }
    SetText(text);
    SetZoom(std::clamp(ReadableHeight / std::max<int>(1, font_->Metrics().height), 1, 4));
    ShowFont(font_.get());
}

} // namespace Glyphor
