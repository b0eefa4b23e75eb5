#pragma once

#include "actions/action_set_font_metrics.h"
#include "app/action_type.h"
#include "model/font.h"

#include <QHash>
#include <QWidget>

#include <vector>

class QFormLayout;
class QLabel;

namespace Glyphor {

class NameField;
class NumberField;

// What there is to know about the current character and the font, as text, and their metrics in
// fields. Those of characters are of all that are selected.
class InfoPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit InfoPanel(QWidget* parent = nullptr);

    // Null for no font, -1 for no character.
    void ShowCode(const Font* font, int code) { ShowCode(font, code, {}); }
    void ShowCode(const Font* font, int code, const CodeSet& selected);

    // Other selected characters of the font that is shown.
    void ShowSelection(const CodeSet& selected);

    void ShowHexadecimal(bool hexadecimal) { hexadecimal_ = hexadecimal; }

    // The value under a caption, for whoever reads the panel without seeing it.
    [[nodiscard]] QString Value(const QString& caption) const;

    [[nodiscard]] NumberField& FieldOf(ActionType edit) const;
    [[nodiscard]] NumberField& FieldOf(FontMetric metric) const;

    // Tells what was typed into a field that still has the focus.
    void TakeTyped();

Q_SIGNALS:
    // The action type is that of an edit that takes a value.
    void CharacterMetricSet(Glyphor::ActionType edit, int value, bool isSpinning);
    void FontMetricSet(Glyphor::FontMetric metric, int value, bool isSpinning);
    void FontNameSet(const QString& name);

private:
    struct CharacterField
    {
        ActionType edit;
        int (*value)(const CharInfo& info);
        NumberField* field;
    };
    struct FontField
    {
        FontMetric metric;
        NumberField* field;
    };

    QLabel* AddHeading(QFormLayout& form, const QString& text);
    void AlignFields();
    void AddRow(QFormLayout& form, const QString& caption);
    void AddField(QFormLayout& form, const QString& caption, ActionType edit, int least, int most,
                  int (*value)(const CharInfo& info));
    void AddField(QFormLayout& form, const QString& caption, FontMetric metric);
    void Set(const QString& caption, const QString& value);
    void ShowFont(const Font& font);
    void ShowCharacter(const Font& font, quint16 code);
    void ShowMetric(const CharacterField& row, const CodeSet& codes);
    void ShowTips();

    QLabel* heading_;
    QHash<QString, QLabel*> values_;
    std::vector<CharacterField> characterFields_;
    std::vector<FontField> fontFields_;
    NameField* name_;
    const Font* font_ = nullptr;
    int code_ = -1;
    bool hexadecimal_ = true;
};

} // namespace Glyphor
