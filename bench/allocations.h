#pragma once

/// Number of calls to operator new so far.
extern long allocations;
