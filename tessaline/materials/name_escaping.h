#pragma once

// Names of materials and pictures as they may stand in file names. Names are bytes; a text of several bytes for a
// letter is escaped byte by byte.

#include <string>
#include <string_view>

// The name with every byte escaped that is no letter, no digit and none of "-_. []()": a percent sign and the value in
// two hexadecimal digits of lower case, the first of which is a blank for a value below 16.
// A name counts as escaped already, and comes back as it is, if all that follows its first percent sign compares not
// below "0" and not above "9": so it may still hold anything behind that, separators included.
std::string url_encode_name(std::string_view name);

// The name with each percent sign and the two characters behind it replaced by the byte that they name, read as the C
// library reads an unsigned number of base 16: leading blanks and a sign count, what is no digit ends it, and no digit
// at all is the value 0. The name may end before the two characters.
std::string url_decode_name(std::string_view name);

// What remains of the name when all is dropped but A to Z, a to z, the digits, the blank and "_-#()[]<>".
std::string filter_file_name(std::string_view name);
