#pragma once

#include "render/DeviceCache.h"
#include "render/RecordingDevice.h"
#include "support/Paths.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace rhomba::test {

// Each test starts from the cache and output mode of a fresh process.
class RenderTest : public ::testing::Test {
protected:
    void SetUp() override { RestoreProcessStartDeviceState(); }
    void TearDown() override { RestoreProcessStartDeviceState(); }

    RecordingDevice device;
};

using Calls = std::vector<std::string>;

// The call names in order, without their arguments.
inline std::vector<std::string> Names(const std::vector<std::string>& calls) {
    std::vector<std::string> out;
    for (const std::string& call : calls) out.push_back(call.substr(0, call.find(' ')));
    return out;
}

} // namespace rhomba::test
