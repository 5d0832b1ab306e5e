#pragma once

/// How often the program has asked for memory.
extern long allocations;
