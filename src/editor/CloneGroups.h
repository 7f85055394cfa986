#pragma once

// The groups a clone write copies, as chosen in the cloning dialog.
struct CloneGroups
{
    bool channels = true;
    bool values = true;
    bool prices = true;
    bool config = true;
    bool enable = true;

    bool any() const { return channels || values || prices || config || enable; }
};
