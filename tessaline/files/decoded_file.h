#pragma once

// A file that has travelled as hexadecimal text in attributes of a model.

#include "skp_ruby/skp_ruby.h"

#include <string>

// Writes what was decoded under that full name, in place of an old file. Bytes that a frame announces and its text does
// not hold are zero, and take no room on a disk that can leave them out. False if the file cannot be made; the old one
// is gone then.
bool write_decoded_file(const cl_hex_encode& decoded, const std::string& path);
