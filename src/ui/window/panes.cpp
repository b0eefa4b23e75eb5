#include "ui/window/panes.h"

#include "ui/editor/char_bitmap_view.h"
#include "ui/preview/text_preview.h"
#include "ui/table/character_table.h"
#include "ui/window/info_panel.h"

#include <QBoxLayout>
#include <QFrame>
#include <QScrollArea>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// The style paints handles as if there were none.
void ShowHandle(QSplitter& splitter)
{
    constexpr int thickness = 5;
    splitter.setHandleWidth(thickness);
    auto* const line = new QFrame;
    const bool isUpright = splitter.orientation() == Qt::Horizontal;
    line->setFrameShape(isUpright ? QFrame::VLine : QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* const layout = new QBoxLayout(QBoxLayout::LeftToRight, splitter.handle(1));
    layout->setContentsMargins({});
    layout->addWidget(line);
    QPalette palette = line->palette();
    palette.setColor(QPalette::WindowText, QColor(0xBB, 0xBB, 0xBB));
    line->setPalette(palette);
}

} // namespace

Panes::Panes()
    : QSplitter(Qt::Horizontal),
      table_(new CharacterTable),
      editor_(new CharBitmapView),
      info_(new InfoPanel),
      preview_(new TextPreview),
      subSplitter_(new QSplitter(Qt::Vertical)),
      upperSplitter_(new QSplitter(Qt::Horizontal))
{
    auto* const infoArea = new QScrollArea;
    infoArea->setWidget(info_);
    infoArea->setWidgetResizable(true);
    infoArea->setFrameShape(QFrame::NoFrame);
    infoArea->setMinimumWidth(180);
    infoArea->setFocusPolicy(Qt::NoFocus);
    upperSplitter_->addWidget(editor_);
    upperSplitter_->addWidget(infoArea);
    upperSplitter_->setStretchFactor(0, 1);
    upperSplitter_->setSizes({360, 260});
    subSplitter_->addWidget(upperSplitter_);
    subSplitter_->addWidget(preview_);
    subSplitter_->setStretchFactor(0, 1);
    subSplitter_->setSizes({520, 130});
    addWidget(table_);
    addWidget(subSplitter_);
    setSizes({620, 620});
    for (QSplitter* const splitter :
         std::initializer_list<QSplitter*>{this, subSplitter_, upperSplitter_}) {
        splitter->setStyleSheet(u"QSplitterHandle { background: #bbbbbb; }"_s);
        splitter->setChildrenCollapsible(false);
        ShowHandle(*splitter);
    }
    connect(table_, &CharacterTable::CurrentCodeChanged, this, &Panes::ShowCurrentCharacter);
    connect(preview_, &TextPreview::TextChanged, this, [this] {
        if (showsNeighbours_)
            ShowCurrentCharacter();
    });
    connect(table_, &CharacterTable::CodesSelected, info_,
            [this] { info_->ShowSelection(table_->SelectedCodes()); });
    connect(table_, &CharacterTable::EditRequested, this, [this] {
        editor_->setFocus();
        if (editor_->CurrentPixel() == nullptr)
            editor_->SelectFirstPixel();
    });
}

std::array<QSplitter*, 2> Panes::SubSplitters() const
{
    return {subSplitter_, upperSplitter_};
}

void Panes::ShowFont(const Font* font)
{
    font_ = font;
    // They must not ask the font before.
    editor_->SetCharacter(nullptr, -1);
    if (font != nullptr)
        editor_->SetZoom(0);
    info_->ShowCode(nullptr, -1);
    table_->ShowFont(font);
    ShowCurrentCharacter();
    preview_->ShowFont(font);
}

void Panes::ShowChanges()
{
    table_->Refresh();
    ShowCurrentCharacter();
    preview_->Refresh();
}

void Panes::ShowCurrentCharacter()
{
    const int code = table_->CurrentCode();
    const bool hasCode = font_ != nullptr && code >= 0;
    editor_->SetBackground(
        hasCode && showsNeighbours_ ? NeighboursIn(preview_->Text(), *font_, quint16(code))
                                    : std::vector<Neighbour>(),
        hasCode && showsOutline_ ? outlines_.PathOf(quint16(code)) : QPainterPath());
    editor_->SetCharacter(hasCode ? font_->FindChar(quint16(code)) : nullptr, code);
    info_->ShowCode(font_, code, table_->SelectedCodes());
}

void Panes::ShowNeighbours(bool isOn)
{
    showsNeighbours_ = isOn;
    ShowCurrentCharacter();
}

void Panes::ShowOutline(bool isOn)
{
    showsOutline_ = isOn;
    ShowCurrentCharacter();
}

void Panes::ShowHexadecimal(bool isOn)
{
    table_->ShowHexadecimal(isOn);
    info_->ShowHexadecimal(isOn);
}

} // namespace Glyphor
