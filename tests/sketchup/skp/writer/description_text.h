#pragma once

// Single values as text that tells any two of them apart.

#include "sketchup/model/values.h"

#include <span>
#include <string>

std::string text_of(double number); // exact
std::string text_of(bool truth);
std::string text_of(const std::string& text); // in quotes, bytes that are no printable ASCII in hexadecimal
std::string text_of(const sketchup::vec3& v);
std::string text_of(const sketchup::plane& p);
std::string text_of(const sketchup::rgba& c);
std::string text_of(const sketchup::guid& id);
std::string text_of(std::span<const double> numbers);
std::string text_of(const sketchup::typed_value& value);
