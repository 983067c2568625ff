// SPDX-License-Identifier: MIT
// Reads freed memory on purpose, or loses some. Sanitized builds expect both to be caught: if one
// is not, the sanitizer is off and all the other tests prove less than they seem to.
#include <cstdlib>

int main(int count, char **)
{
    auto *memory = static_cast<volatile char *>(std::malloc(16));
    const bool loses = count > 1;
    if (!loses)
        std::free(const_cast<char *>(memory));
    const char read = memory[3]; // NOLINT
    memory = nullptr;
    return loses ? 0 : read;
}
