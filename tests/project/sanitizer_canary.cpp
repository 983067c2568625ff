// SPDX-License-Identifier: MIT
// Reads freed memory on purpose. Sanitized builds expect it to be caught: if it is not, the
// sanitizer is off and all the other tests prove less than they seem to.
#include <cstdlib>

int main()
{
    auto *memory = static_cast<volatile char *>(std::malloc(16));
    std::free(const_cast<char *>(memory));
    return memory[3]; // NOLINT
}
