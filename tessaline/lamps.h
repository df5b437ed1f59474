#pragma once

// What is a lamp, and what a lamp becomes.

#include "tessaline/slp_oparms.h"

// Whether an object's parameters describe a lamp: they name a type, as text or as a number. What an object says holds
// for all that is inside it, so whether a lamp is open already is the caller's question.
bool is_lamp(const cl_slp_light& light);
