#pragma once

// The wait for a count echo or a reply's first byte in the tests that talk to tarvik-sim over a
// pseudo-terminal. The virtual validator is another process: on a machine whose cores are busy
// it may not be scheduled for tens of milliseconds, which a real validator behind its own
// processor never costs. The product's 100 ms stays as it is; the tests wait longer, so that
// they pass while other processes keep the cores busy. The 900 ms reply window is unchanged.
inline constexpr int kTestPortTimeoutMs = 1000;
