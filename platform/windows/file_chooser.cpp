// Asks for a file with the system's dialogs.

#include "platform/platform.h"

#include "platform/windows/open_windows.h"

#include <algorithm>
#include <array>

#include <cderr.h>
#include <commdlg.h>

namespace platform {

namespace {

using ask_call = BOOL(WINAPI*)(OPENFILENAMEA*);

// The dialogs want a zero where our filters have a bar.
std::string with_zeros(std::string filter) {
    std::replace(filter.begin(), filter.end(), '|', '\0');
    return filter;
}

// offered: may be empty. is_refused: set if the dialog did not open because of the name offered.
std::optional<std::string> asked(ask_call ask, const file_question& question, DWORD flags, const std::string& offered,
                                 bool& is_refused) {
    std::array<char, longest_name + 1> name{};
    offered.copy(name.data(), longest_name);
    const std::string filter = with_zeros(question.filter);
    OPENFILENAMEA form = {};
    form.lStructSize = sizeof form;
    form.hwndOwner = front_window();
    form.lpstrFilter = filter.empty() ? nullptr : filter.c_str();
    form.lpstrFile = name.data();
    form.nMaxFile = static_cast<DWORD>(name.size());
    form.lpstrTitle = question.title.c_str();
    form.lpstrDefExt = question.default_extension.c_str();
    form.Flags = flags;
    if (ask(&form))
        return std::string(name.data());
    is_refused = CommDlgExtendedError() == FNERR_INVALIDFILENAME;
    return std::nullopt;
}

// The dialogs do not open at all for an offered name that cannot be one.
std::optional<std::string> asked_in_any_case(ask_call ask, const file_question& question, DWORD flags) {
    bool is_refused = false;
    auto answer = asked(ask, question, flags, question.default_name, is_refused);
    if (is_refused)
        answer = asked(ask, question, flags, {}, is_refused);
    return answer;
}

} // namespace

bool can_ask_for_file() {
    return !is_unattended();
}

std::optional<std::string> ask_for_file_to_open(const file_question& question) {
    return asked_in_any_case(GetOpenFileNameA, question, OFN_READONLY);
}

std::optional<std::string> ask_for_file_to_save(const file_question& question) {
    const DWORD asking = question.asks_before_overwriting ? OFN_OVERWRITEPROMPT : 0;
    return asked_in_any_case(GetSaveFileNameA, question, OFN_READONLY | asking);
}

} // namespace platform
