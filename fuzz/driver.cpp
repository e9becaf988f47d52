// SPDX-License-Identifier: MIT
#include "fuzzsupport.h"
#include "hostsupport.h"
#include "mutation.h"

// What makes a program of libFuzzer's out of a target.

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    startApplication();
    plugin();
    workFolder();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    inputSize = size;
    tryInput(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    return mutateText(data, size, maxSize, seed);
}
