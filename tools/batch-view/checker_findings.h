#pragma once

#include "tools/page/write_page.h"

#include <string>

// Checks the batch and tells the facts of its page what was found.
void add_findings(const std::string& batch_folder, page_facts& facts);
