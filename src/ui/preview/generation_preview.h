#pragma once

#include "actions/action_open_font.h"

#include <QTimer>
#include <QWidget>

class QLabel;
class QLineEdit;

namespace Glyphor {

class TextStrip;

// Shows a sample in the pixels that a scalable font would be rendered to, and how large the font
// would be. It renders in the window's turns, so that the dialog around it keeps working.
class GenerationPreview final : public QWidget
{
    Q_OBJECT

public:
    explicit GenerationPreview(QWidget* parent = nullptr);
    ~GenerationPreview() override;

    // Shows the font that the arguments make, soon, and which of the wanted characters it lacks.
    // What is being rendered is given up.
    void ShowFor(const ActionOpenFontArgs& args, const CodeSet& wanted);

    // Shows a text instead.
    void ShowFault(const QString& fault);

    // Gives up what is being rendered.
    void Stop();

    [[nodiscard]] QString Sample() const;
    void SetSample(const QString& sample);

    // The font that shows: first with the characters of the sample, then all of it. Null where
    // there is none.
    [[nodiscard]] const Font* SampleFont() const { return font_.get(); }

Q_SIGNALS:
    void Finished();

private:
    void RenderFont();
    void RenderSample();
    void RenderAll();
    [[nodiscard]] QString MissingFrom(const Font& font) const;
    void ShowFont(std::unique_ptr<Font> font);

    TextStrip* strip_;
    TextStrip* lightStrip_; // on dark, where gamma works the other way round
    QLineEdit* field_;
    QLabel* sizes_;
    QLabel* notes_;
    QTimer timer_;
    ActionOpenFontArgs args_;
    CodeSet wanted_;
    std::unique_ptr<Font> font_;
    bool isRendering_ = false;
    bool isStale_ = false; // what is being rendered
};

} // namespace Glyphor
