#pragma once

#include "model/PathObject.h"
#include "render/DeviceCache.h"
#include "render/RecordingDevice.h"

#include <gtest/gtest.h>

#include <memory>
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

// A closed axis-aligned square with its lower left corner at (x, y).
inline std::unique_ptr<PathObject> Square(double x, double y, double side) {
    auto path = std::make_unique<PathObject>();
    path->AddNode({x, y}, node::kMoveTo);
    path->AddNode({x + side, y}, node::kLineTo);
    path->AddNode({x + side, y + side}, node::kLineTo);
    path->AddNode({x, y + side}, node::kLineTo | node::kCloseFigure);
    return path;
}

// The call names in order, without their arguments.
inline std::vector<std::string> Names(const std::vector<std::string>& calls) {
    std::vector<std::string> out;
    for (const std::string& call : calls) out.push_back(call.substr(0, call.find(' ')));
    return out;
}

} // namespace rhomba::test
