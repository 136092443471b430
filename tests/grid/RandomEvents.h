// RandomEvents: input, commands and misfortunes for a grid control, one after the other, as a seed says.
#pragma once

#include "GridInvariants.h"
#include "RandomSource.h"
#include "WindowTestApp.h"

#include "grid/UGEllipsisType.h"

#include <memory>
#include <string>
#include <vector>

// A grid whose notifications veto now and then, and sometimes change the table under the grid's feet.
class RandomGrid : public ProbedGrid {
public:
    explicit RandomGrid(SeededRandom *random) : m_random(random) {}
    void OnHitBottom(long numRows, long rowsPast, long rowsFound) override;
    void OnCharDown(UINT *key, int processed) override;
    int OnSetCell(int col, long row, CUGCell *cell) override;
    int OnMenuStart(int, long, int) override { return 0; } // a menu would wait for a person

    bool m_vetoing = false;
    int m_dragStepsLeft = 0;     // drag scrolling ends when they are used up
    bool m_dragsAcross = false;  // along the row only: no end is told, so the last column ends it as well

protected:
    int Note(const char *name, std::initializer_list<long> arguments) override;

private:
    void CountDragStep(bool hit, long newCol);
    void EndDrag();
    SeededRandom *m_random; // borrowed
};

class RandomEvents {
public:
    explicit RandomEvents(unsigned seed);
    ~RandomEvents();
    // Does the next event, of which Text then tells.
    void Next();
    const std::string &Text() const { return m_text; }
    std::string Broken(unsigned turn) { return BrokenInvariant(m_grid, turn); }
    // The cells as they stand on the screen differ from how a full paint shows them.
    bool ScreenIsStale();

private:
    struct Event {
        int weight;
        void (RandomEvents::*act)();
    };
    static const Event kEvents[];

    bool DiffersFromAFullPaint();
    // Notes what is about to happen.
    void Say(const char *format, ...);
    CPoint PointInCells();
    HWND Target();
    std::unique_ptr<HeldKeys> Modifiers();

    void Key();
    void Character();
    void TypedEdit();
    void EditCommand();
    void LeftClick();
    void DoubleClick();
    void RightClick();
    void PressOnly();
    void MoveOnly();
    void ReleaseOnly();
    void Drag();
    void DragOutside();
    void DragAcross();
    void HoldOutside(CPoint from, int x, int y, int steps);
    void ListInput();
    void HeadingClick();
    void HeadingDrag();
    void CornerClick();
    void CornerDrag();
    void Wheel();
    void BarCommand();
    void BarThumb();
    void TabInput();
    void Focus();
    void Capture();
    void Resize();
    void Rows();
    void Columns();
    void Sizes();
    void Heights();
    void Headings();
    void SelectionMode();
    void SelectionCommand();
    void Conduct();
    void Locked();
    void Painting();
    void Source();
    void Goto();
    void View();
    void ColumnDefault();
    void Paste();
    void Misfortune();

    unsigned m_seed, m_number = 0;
    SeededRandom m_random; // chooses the events
    // What sources and notifications answer. It begins anew with each event: how often they are asked depends on
    // when painting comes, and that must not change the events that follow.
    SeededRandom m_chance;
    RandomSource m_first, m_second;
    HostWindow m_host;
    CUGEllipsisType m_ellipsis;
    RandomGrid m_grid;
    std::string m_text;
    int m_weights = 0;
};
