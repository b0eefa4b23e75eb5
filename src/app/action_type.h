#pragma once

namespace Glyphor {

// What an action does; also the number of its menu command. Kinds from ExitProgram on have no
// action object: the front end handles them itself.
enum class ActionType : int {
    None = 0,
    CreateFont = 1,
    OpenFont = 2,
    SaveFont = 3,
    SaveFontAs = 4,
    SavePattern = 5,
    SaveKerning = 6,
    MergeFont = 7,
    InsertColumnRight = 8,
    InsertColumnLeft = 9,
    InsertRowTop = 10,
    InsertRowBottom = 11,
    ShiftRight = 12,
    ShiftLeft = 13,
    ShiftUp = 14,
    ShiftDown = 15,
    MoveRight = 16,
    MoveLeft = 17,
    MoveUp = 18,
    MoveDown = 19,
    IncreaseCursorDistance = 20,
    DecreaseCursorDistance = 21,
    DeleteColumnRight = 22,
    DeleteColumnLeft = 23,
    DeleteRowTop = 24,
    DeleteRowBottom = 25,
    FontInsertRowTop = 26,
    FontInsertRowBottom = 27,
    FontDeleteRowTop = 28,
    FontDeleteRowBottom = 29,
    Enable = 30,
    Disable = 31,
    DisableAll = 32,
    Toggle = 33,
    ReadPattern = 34,
    IncreasePixelIndex = 35,
    DecreasePixelIndex = 36,
    InvertPixelIndex = 37,
    SetPixelIndex0 = 38, // up to SetPixelIndex0 + 15
    SetPixelIndex15 = 53,
    ExitProgram = 54,
    ListFonts = 60,
    PrintUsage = 64
};

} // namespace Glyphor
