#pragma once

class Report;

/** Measures everything the module does beside the bare toolkit doing the same. */
void reportSpeed(Report* report);
