#pragma once

// What is a lamp, and what a lamp becomes.

#include "tessaline/state/slp_oparms.h"

// Whether an object's parameters describe a lamp: they name a type, as text or as a number. What an object says holds
// for all that is inside it, so whether a lamp is open already is the caller's question.
bool is_lamp(const cl_slp_light& light);

// Whether such a lamp is light without geometry, a bulb or a spot, or is inside of one.
bool is_direct_light(const cl_slp_light& light);

// The factor of all intensities, from the settings: 1 in the middle of the balance, falling in a line to 0.02 at its
// low end, rising steeply to 98.02 at its high end. A balance outside 1 to 99 is mended in the settings too.
double light_balance_factor();
