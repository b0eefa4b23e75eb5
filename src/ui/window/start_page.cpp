#include "ui/window/start_page.h"

#include "app/shown_text.h"
#include "ui/support/contrast.h"

#include <QFileInfo>
#include <QLabel>
#include <QVBoxLayout>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// Reached by the keyboard as well.
QLabel* MakeLink(const QString& text)
{
    auto* const link = new QLabel(u"<a href=\"#\">%1</a>"_s.arg(text.toHtmlEscaped()));
    link->setTextFormat(Qt::RichText);
    link->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    link->setFocusPolicy(Qt::TabFocus);
    link->setAccessibleName(text);
    QPalette palette = link->palette();
    const QColor paper = palette.color(QPalette::Window);
    palette.setColor(QPalette::Link, LegibleInk(palette.color(QPalette::Link), paper));
    link->setPalette(palette);
    return link;
}

} // namespace

StartPage::StartPage() : recent_(new QVBoxLayout)
{
    QLabel* const create = MakeLink(tr("Make a font of an installed one"));
    QLabel* const open = MakeLink(tr("Open a font file"));
    auto* const drop = new QLabel(tr("or drop a font file anywhere in this window"));
    for (QLabel* const line : {create, open}) {
        QFont large = line->font();
        large.setPointSizeF(large.pointSizeF() * 1.4);
        line->setFont(large);
    }
    auto* const lines = new QVBoxLayout;
    lines->setSpacing(10);
    lines->addStretch(2);
    for (QLabel* const line : {create, open, drop})
        lines->addWidget(line, 0, Qt::AlignLeft);
    lines->addSpacing(20);
    lines->addLayout(recent_);
    lines->addStretch(3);
    auto* const layout = new QHBoxLayout(this);
    layout->addStretch();
    layout->addLayout(lines);
    layout->addStretch();
    connect(create, &QLabel::linkActivated, this, &StartPage::NewRequested);
    connect(open, &QLabel::linkActivated, this, &StartPage::OpeningRequested);
}

void StartPage::ShowRecentFiles(const QStringList& paths)
{
    while (QLayoutItem* const item = recent_->takeAt(0)) {
        item->widget()->deleteLater(); // it may be the one that was clicked
        delete item;
    }
    if (!paths.isEmpty())
        recent_->addWidget(new QLabel(u"<b>%1</b>"_s.arg(tr("Recent files"))));
    for (const QString& path : paths) {
        QLabel* const link = MakeLink(Shown(QFileInfo(path).fileName()));
        link->setToolTip(Qt::convertFromPlainText(Shown(path)));
        recent_->addWidget(link, 0, Qt::AlignLeft);
        connect(link, &QLabel::linkActivated, this, [this, path] { Q_EMIT FileChosen(path); });
    }
}

} // namespace Glyphor
