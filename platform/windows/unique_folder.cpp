// A folder that is new and that only its user may enter.

#include "platform/platform.h"

#include "platform/windows/system_handle.h"

#include <array>
#include <random>

#include <sddl.h>

namespace platform {

namespace {

struct free_local {
    void operator()(void* memory) const { LocalFree(memory); }
};
template<class Type>
using local_memory = std::unique_ptr<Type, free_local>;

// The user as the rights of files name one; empty if the system does not tell.
std::string user_in_rights() {
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return {};
    const system_handle owned_token = owned(token);
    alignas(TOKEN_USER) std::array<char, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> buffer;
    DWORD size = static_cast<DWORD>(buffer.size());
    if (!GetTokenInformation(token, TokenUser, buffer.data(), size, &size))
        return {};
    char* text = nullptr;
    if (!ConvertSidToStringSidA(reinterpret_cast<const TOKEN_USER*>(buffer.data())->User.Sid, &text))
        return {};
    return local_memory<char>(text).get();
}

// Rights for that user alone, on the folder and on all that comes into it; none from the folder above.
local_memory<void> rights_of_one(const std::string& user) {
    const std::string words = "D:P(A;OICI;FA;;;" + user + ")";
    PSECURITY_DESCRIPTOR rights = nullptr;
    if (user.empty() ||
        !ConvertStringSecurityDescriptorToSecurityDescriptorA(words.c_str(), SDDL_REVISION_1, &rights, nullptr))
        return nullptr;
    return local_memory<void>(rights);
}

std::string six_characters(std::random_device& chance) {
    constexpr std::string_view characters = "abcdefghijklmnopqrstuvwxyz0123456789"; // case does not tell names apart
    std::uniform_int_distribution<std::size_t> any(0, characters.size() - 1);
    std::string text;
    for (int i = 0; i < 6; ++i)
        text += characters[any(chance)];
    return text;
}

} // namespace

std::optional<std::string> make_unique_folder(const std::string& beginning) {
    constexpr int most_tries = 100; // of two thousand million names
    const local_memory<void> rights = rights_of_one(user_in_rights());
    if (!rights)
        return std::nullopt;
    SECURITY_ATTRIBUTES attributes = {sizeof attributes, rights.get(), FALSE};
    std::random_device chance;
    for (int i = 0; i < most_tries; ++i) {
        const std::string name = beginning + six_characters(chance);
        if (CreateDirectoryA(name.c_str(), &attributes))
            return name;
        if (GetLastError() != ERROR_ALREADY_EXISTS)
            return std::nullopt;
    }
    return std::nullopt;
}

} // namespace platform
