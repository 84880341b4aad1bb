#include <cmath>
#include <nlohmann/json.hpp>

#include "batch/BatchTest.h"

namespace vorlan {
namespace {

using Json = nlohmann::json;

class GridSteps : public BatchTest {
  protected:
    Result apply(const std::string& workspace, const std::string& steps) const {
        return run({"run", "--recipe", write("r.toml", steps), "--in-place", path(workspace)});
    }
    Json info(const std::string& workspace) const { return Json::parse(done({"info", "--json", path(workspace)})); }
    static std::string step(const std::string& name, const std::string& keys = {}) {
        return "[[step]]\ndo = \"" + name + "\"\n" + keys + "\n";
    }
    std::string file(const std::string& name) const { return "path = \"" + path(name) + "\"\n"; }
};

TEST_F(GridSteps, MakeEditSaveAndCloseBoundaries) {
    done({"new", path("w.avp")});
    write("old.bnd", "1 2 3\n4 5 6\n");
    ASSERT_EQ(apply("w.avp", step("boundary-new", file("bed.bnd")) + step("node-insert", "x = 1.2345\nz = -0.0005") +
                                 step("node-insert", "x = 2") +            // at 0: the first moves up
                                 step("node-insert", "x = 3\nnode = 2") +  // behind the last
                                 step("boundary-save") + step("boundary-open", file("old.bnd")) +
                                 step("node-set", "node = 1\ny = 0.29") + step("node-remove", "node = 0") +
                                 step("node-insert", "boundary = 1\nz = 9") +  // another boundary: at its node 0
                                 step("boundary-save", "boundary = 2\n" + file("copy.bnd")))
                  .status,
              0);
    EXPECT_EQ(read(path("bed.bnd")),
              "2.000000 0.000000 0.000000\n1.234000 0.000000 0.000000\n3.000000 0.000000 0.000000\n");
    EXPECT_EQ(read(path("copy.bnd")), "4.000000 0.290000 6.000000\n");
    EXPECT_EQ(read(path("old.bnd")), "1 2 3\n4 5 6\n");
    Json boundaries = info("w.avp")["boundaries"];
    ASSERT_EQ(boundaries.size(), 2U);
    EXPECT_EQ(boundaries[0]["name"], "bed.bnd");
    EXPECT_EQ(boundaries[0]["nodes"].size(), 4U);
    EXPECT_EQ(boundaries[0]["nodes"][0], Json({0.0, 0.0, 9.0}));
    EXPECT_EQ(boundaries[1]["path"], path("copy.bnd"));

    // A file that a step of this run has written is read back, and again over the nodes that stay.
    ASSERT_EQ(
        apply("w.avp", step("boundary-new", file("late.bnd")) + step("node-insert", "x = 0.7") + step("boundary-save") +
                           step("node-insert", "x = 5") + step("boundary-open", file("late.bnd")) +
                           step("boundary-close", "boundary = 1") + step("node-remove"))
            .status,
        0);
    boundaries = info("w.avp")["boundaries"];
    ASSERT_EQ(boundaries.size(), 2U);
    EXPECT_EQ(boundaries[0]["nodes"].size(), 0U);
    EXPECT_EQ(boundaries[1]["nodes"], Json({{699 * 0.001, 0.0, 0.0}, {699 * 0.001, 0.0, 0.0}}));
}

TEST_F(GridSteps, PlaceProbesAndVectors) {
    withProbes("w.avp", 2);
    ASSERT_EQ(apply("w.avp", "probes = [2]\n" + step("position", "x = 1.5\nz = -0.0333") +
                                 step("vectors", "plane = \"xz\"\npixels = 30\nspeed = 2.5"))
                  .status,
              0);
    const Json json = info("w.avp");
    EXPECT_EQ(json["vectors"], Json({{"plane", 1}, {"pixels", 30}, {"speed", 2.5}, {"smaller", 5.0}}));
    EXPECT_EQ(json["meanVelocity"], Json({{"mode", 0}, {"value", 10.0}}));
    EXPECT_EQ(json["samplingVolumes"][0]["positions"], Json({{0.0, 0.0, 0.0}, {1.5, 0.0, -33 * 0.001}}));
    const Json& probes = json["files"][0]["probes"];
    EXPECT_EQ(probes[0]["stageDone"][3], 0);
    EXPECT_EQ(probes[1]["stageDone"][3], 1);
    const Workspace workspace = openWorkspace(path("w.avp"));
    const SAdvProbe& probe = probeOf(workspace, 0, 1);
    EXPECT_EQ(probe.samplingVolumeZ, -0.0333 / 0.001);
    EXPECT_EQ(probe.tabItems.GetSize(), 2);
    const SArray& v = probe.workTables[0].GetAt(1);
    double sum = 0.0;
    double lowest = v.GetValue(0);
    for (int i = 0; i < v.GetSize(); ++i) {
        sum += v.GetValue(i);
        lowest = std::min(lowest, v.GetValue(i));
    }
    const Json& vectors = probes[1]["vectors"];
    EXPECT_EQ(vectors["mean"][1].get<double>(), sum / v.GetSize());
    EXPECT_EQ(vectors["minimum"][1].get<double>(), lowest);
    const double u = vectors["mean"][0];
    EXPECT_DOUBLE_EQ(vectors["heading"].get<double>(), std::atan2(sum / v.GetSize(), u) * 180.0 / 3.141592653589);
}

TEST_F(GridSteps, RefusalsLeaveEveryFileAsItWas) {
    done({"new", path("w.avp")});
    write("bad.bnd", "1 2 3\n4 5\n");
    const std::string before = read(path("w.avp"));
    const std::string made = step("boundary-new", file("a.bnd"));
    struct Row {
        std::string steps;
        int status;
        std::string text;
    };
    for (const Row& row : std::vector<Row>{
             {step("boundary-open", file("bad.bnd")), 3, "Format of the file " + path("bad.bnd") + " is invalid !"},
             {step("boundary-open", file("none.bnd")), 3, "Cannot find data file: " + path("none.bnd")},
             {step("boundary-new", file("none/a.bnd")), 4, "Cannot find data file: " + path("none/a.bnd")},
             {step("node-remove"), 1, "Encountered an improper argument."},
             {made + step("node-set", "node = 0\nx = 1"), 1, "Encountered an improper argument."},
             {made + step("boundary-save", "boundary = 2"), 1, "Encountered an improper argument."},
             {step("boundary-new", file("w.avp")), 2, "would be overwritten"},
             {step("vectors", "pixels = 0"), 2, "\"pixels\" must be at least 1"},
             {step("boundary-new", "path = \"\""), 2, "is empty"},
             {step("node-insert", "boundary = 0"), 1, "Encountered an improper argument."}}) {
        SCOPED_TRACE(row.steps);
        const Result result = apply("w.avp", row.steps);
        EXPECT_EQ(result.status, row.status) << result.err;
        EXPECT_TRUE(holds(result.err, row.text));
        EXPECT_TRUE(sameBytes(read(path("w.avp")), before));
        EXPECT_EQ(names(), (std::vector<std::string>{"bad.bnd", "r.toml", "w.avp"}));
    }
}

}  // namespace
}  // namespace vorlan
