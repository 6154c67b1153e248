#pragma once

class Report;

/** A number of openings, and a number of polls during one further opening. */
struct HeapCycle
{
    int openings;
    int polls;
};

/**
 * Runs a few cycles to warm up, then \a cycles more, and demands that these change neither the heap in use nor the
 * number of widgets. All cycles are the same, because the allocator needs a repeating load to settle.
 */
void reportHeap(Report* report, int cycles, const HeapCycle& cycle);
