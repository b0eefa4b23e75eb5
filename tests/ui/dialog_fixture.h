#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>

namespace Glyphor::Test {

inline QPushButton* Ok(const QDialog& dialog)
{
    return dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
}

// The widget of a kind whose label or own text has these words.
template <typename Widget>
Widget* Labelled(const QDialog& dialog, const QString& text)
{
    for (QLabel* const label : dialog.findChildren<QLabel*>()) {
        if (label->text().remove(u'&') == text && label->buddy() != nullptr)
            return qobject_cast<Widget*>(label->buddy());
    }
    for (Widget* const widget : dialog.findChildren<Widget*>()) {
        if (widget->property("text").toString().remove(u'&') == text ||
            widget->accessibleName() == text)
            return widget;
    }
    return nullptr;
}

} // namespace Glyphor::Test
