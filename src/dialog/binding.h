#pragma once
#include "records/section.h"
#include <functional>

// What an edge of a control does when its dialog is made larger than the description file has it.
enum EdgeBinding : int
{
    EdgeStays = 0, // It keeps its distance from the left or top.
    EdgeMoves = 1, // It keeps its distance from the right or bottom.
    EdgeShares = 2 // It stays at the same part of the width or height.
};

// How far the edges of a rectangle are from the left and the top, in pixels.
struct EdgesCL
{
    int left { 0 }; // Of its left edge from the left.
    int top { 0 };
    int right { 0 };
    int bottom { 0 };
};

// How one control of a description file follows the size of its dialog. Any value that is none of EdgeBinding
// counts as EdgeStays.
struct BindingCL
{
    int control { 0 }; // Its function id.
    int left { EdgeStays };
    int top { EdgeStays };
    int right { EdgeStays };
    int bottom { EdgeStays };

    // Shows the visitor the values in the order of the file.
    PANELKIT_API void EachFieldM(FieldVisitorCL& visitor);
    // Whether the two edges that it binds in a direction come nearer to each other as the dialog grows.
    PANELKIT_API bool ShrinksM(Along along) const;
    // Whether they go apart.
    PANELKIT_API bool StretchesM(Along along) const;
};

// How a dialog is larger than the description file has it; its client area, in pixels.
struct GrowthCL
{
    // A size: from the file, and as it is now. Below the file's counts as the file's, in each direction.
    PANELKIT_API GrowthCL(const int (&fileSize)[2], int width, int height);
    int size[2]; // From the file.
    int more[2]; // What has been added; 0 or more.
};

// A control cannot be stretched in some directions: a picture in none.
struct KeptSizeCL
{
    bool width { false }; // Its width stays.
    bool height { false };
};

// Where a control stands in a dialog that has grown. Edges never pass one another as the dialog grows: stay
// before share before move. What keeps its size stands in the middle of the rectangle that it would have had.
// described: where it stands at the file's size. At that size nothing changes.
PANELKIT_API EdgesCL slBoundEdges(
    const EdgesCL& described, const BindingCL& binding, const GrowthCL& growth, const KeptSizeCL& kept = {});

// Calls take(binding), unless it is null, for each entry of the section in an open file; 0 from it: no
// control of the dialog has the id.
PANELKIT_API SectionStatus slReadBindings(VrIOCL& io, const std::function<int(BindingCL& binding)>& take);
