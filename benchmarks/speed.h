#pragma once

class Report;

/** Measures the module beside a bare dialog that does the same, and prints the table of times. */
void reportSpeed(Report* report);
