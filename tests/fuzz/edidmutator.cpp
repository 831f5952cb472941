// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>

/*!
 * \file
 * \brief Changes EDIDs so that most of them have right checksums: hardly any other change of one is read.
 */

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maximumSize);
extern "C" std::size_t LLVMFuzzerCustomMutator(
    std::uint8_t *data, std::size_t size, std::size_t maximumSize, unsigned seed);

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maximumSize, unsigned seed)
{
    constexpr std::size_t blockSize = 128;
    constexpr unsigned oneInAsManyIsLeft = 4;
    size = LLVMFuzzerMutate(data, size, maximumSize);
    const bool isText = size < 2 || data[0] != 0x00 || data[1] != 0xFF;
    if (isText || seed % oneInAsManyIsLeft == 0) {
        return size;
    }
    for (std::size_t block = 0; block + blockSize <= size; block += blockSize) {
        unsigned sum = 0;
        for (std::size_t i = 0; i + 1 < blockSize; ++i) {
            sum += data[block + i];
        }
        data[block + blockSize - 1] = std::uint8_t(0U - sum);
    }
    return size;
}
