#pragma once

class Report;

/** So many openings, and so many polls in a further one. */
struct HeapCycle
{
    int openings;
    int polls;
};

/**
 * Compares heap and widgets before and after \a cycles; some more go ahead to warm up. All are alike, because the
 * allocator's own roundings settle only under a load that repeats itself.
 */
void reportHeap(Report* report, int cycles, const HeapCycle& cycle);
