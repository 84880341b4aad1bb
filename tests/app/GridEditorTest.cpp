#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <map>
#include <random>
#include <set>

#include "app/GridEditor.h"
#include "app/RecordingPort.h"
#include "app/SampleDocument.h"
#include "io/TempFolder.h"

namespace vorlan {
namespace {

using Node = std::array<std::int32_t, 3>;
using Nodes = std::vector<Node>;
using Disk = std::map<std::string, std::string>;

/// Files in memory; a folder that cannot be written is a path in locked.
class MemoryDisk : public BoundaryStorage {
  public:
    void read(SBndFile& boundary) override {
        const auto file = files.find(boundary.path);
        if (file == files.end()) {
            throw BoundaryOpenError(boundary.path);
        }
        readBoundary(boundary, file->second);
    }
    void write(const SBndFile& boundary) override {
        if (locked.count(boundary.path) != 0) {
            throw BoundaryOpenError(boundary.path);
        }
        files[boundary.path] = boundaryText(boundary);
    }

    Disk files;
    std::set<std::string> locked;
};

/// What the editor should do, in lists and printf.
struct PlainEditor {
    struct Boundary {
        std::string name;
        std::string path;
        Nodes nodes;
    };
    std::vector<Boundary> all;
    std::map<std::string, Nodes> known;
    Disk files;
    std::set<std::string> locked;
    int current = -1;
    int node = -1;
    std::string status;

    static Node units(const std::array<double, 3>& p) {
        return {static_cast<int>(p[0] / 0.001), static_cast<int>(p[1] / 0.001), static_cast<int>(p[2] / 0.001)};
    }
    Nodes& nodes() { return all[static_cast<std::size_t>(current)].nodes; }
    int count() { return current < 0 ? 0 : static_cast<int>(nodes().size()); }
    void show(int index) {
        node = std::min(index, count() - 1);
        status = node < 0 ? "Total nodes number is 0" : "Current boundary node " + std::to_string(node);
    }
    void choose(int index) {
        current = index;
        show(0);
        status = index < 0 ? "" : status;
    }
    static std::string nameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }
    bool write(const std::string& path, const Nodes& nodes) {
        if (locked.count(path) != 0) {
            return false;
        }
        std::string text;
        for (const Node& n : nodes) {
            std::array<char, 200> line{};
            std::snprintf(line.data(), line.size(), "%f %f %f\n", n[0] * 0.001, n[1] * 0.001, n[2] * 0.001);
            text += line.data();
        }
        files[path] = text;
        known[path] = nodes;
        return true;
    }
    void create(const std::string& path) {
        if (write(path, {})) {
            all.push_back({nameOf(path), path, {}});
            choose(static_cast<int>(all.size()) - 1);
        }
    }
    void open(const std::string& path) {
        if (files.count(path) == 0) {
            return;
        }
        Nodes read;
        const char* at = files[path].c_str();
        bool good = true;
        while (*at != '\0' && good) {
            std::array<float, 3> v{};
            int length = 0;
            good = std::sscanf(at, "%f %f %f%n", &v[0], &v[1], &v[2], &length) == 3;
            if (good) {
                read.push_back(units({v[0], v[1], v[2]}));
                for (at += length; *at == '\n' || *at == ' ';) {
                    ++at;
                }
            }
        }
        int index = -1;
        for (int i = static_cast<int>(all.size()) - 1; i >= 0; --i) {
            index = all[static_cast<std::size_t>(i)].path == path ? i : index;
        }
        if (good) {
            known[path] = read;
        }
        if (index < 0 && good) {
            all.push_back({nameOf(path), path, read});
            index = static_cast<int>(all.size()) - 1;
        } else if (index >= 0) {
            Nodes& held = all[static_cast<std::size_t>(index)].nodes;
            for (std::size_t i = 0; i < read.size(); ++i) {
                held.resize(std::max(held.size(), i + 1));
                held[i] = read[i];
            }
        }
        if (good) {
            choose(index);
        } else if (current >= 0) {
            show(std::max(node, 0));
        }
    }
    void save(const std::string& path) {
        if (write(path, nodes())) {
            Boundary& saved = all[static_cast<std::size_t>(current)];
            saved = {nameOf(path), path, saved.nodes};
            status = saved.name + " saved";
        }
    }
    bool written(const Boundary& b) { return known[b.path] == b.nodes; }
    void close(bool answer) {
        if (written(all[static_cast<std::size_t>(current)]) || answer) {
            all.erase(all.begin() + current);
            choose(std::min(current, static_cast<int>(all.size()) - 1));
        }
    }
    std::vector<std::string> texts() {
        std::vector<std::string> list;
        for (const Boundary& b : all) {
            list.push_back(b.name + (written(b) ? "" : " *"));
        }
        return list;
    }
};

TEST(GridEditor, TenThousandActionsDoWhatPlainListsDo) {
    RecordingPort port;
    CVorl_ADVDoc document(port);
    MemoryDisk disk;
    document.SetBoundaryStorage(disk);
    GridEditor editor(document);
    PlainEditor plain;
    std::mt19937 random(11);
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const auto coordinate = [&] { return std::round((below(40001) - 20000) * (below(2) == 0 ? 1.0 : 0.37)) / 1000.0; };
    const auto position = [&] { return Position{coordinate(), coordinate(), coordinate()}; };
    const std::array<std::string, 5> paths = {"/no/a.bnd", "/no/b.bnd", "/no/c.bnd", "/no/d/e.bnd", "/no/f"};
    const std::array<std::string, 4> texts = {"1 2 3\n0.7 0.1 16.001\n", "", "1 2 3\n4 5\n", "9.999 8 7 6.5 5 4\n\n"};

    for (int step = 0; step < 10000; ++step) {
        const int action = below(12);
        const std::string& path = paths[static_cast<std::size_t>(below(paths.size()))];
        if (action == 0 && plain.all.size() > 1) {
            const int index = below(static_cast<int>(plain.all.size()));
            editor.chooseBoundary(index);
            plain.choose(index);
        } else if (action == 1 && plain.count() > 0) {
            const int index = below(plain.count());
            editor.chooseNode(index);
            plain.show(index);
        } else if (action == 2 && plain.all.size() < 6) {
            editor.newBoundary(path);
            plain.create(path);
        } else if (action == 3) {
            editor.openBoundary(path);
            plain.open(path);
        } else if (action == 4 && plain.current >= 0) {
            editor.saveBoundary(path);
            plain.save(path);
        } else if (action == 5 && plain.current >= 0 && below(3) == 0) {
            port.answer = below(2) == 0;
            editor.closeBoundary();
            plain.close(port.answer);
        } else if ((action == 6 || action == 7) && plain.current >= 0) {
            const Position p = position();
            editor.addNode(p);
            plain.nodes().insert(plain.nodes().begin() + std::max(plain.node, 0), PlainEditor::units(p));
            plain.show(plain.count() - 1);
        } else if (action == 8 && plain.node >= 0) {
            const Position p = position();
            const auto axis = static_cast<std::size_t>(below(3));
            PositionChange change;
            change[axis] = p[axis];
            editor.moveNode(change);
            plain.nodes()[static_cast<std::size_t>(plain.node)][axis] = PlainEditor::units(p)[axis];
        } else if (action == 9 && plain.node >= 0) {
            editor.removeNode();
            plain.nodes().erase(plain.nodes().begin() + plain.node);
            plain.show(plain.node);
        } else if (action == 10) {
            // Another program writes the file.
            disk.files[path] = plain.files[path] = texts[static_cast<std::size_t>(below(texts.size()))];
        } else if (action == 11) {
            disk.locked = plain.locked = below(2) == 0 ? std::set<std::string>{path} : std::set<std::string>{};
        }
        SCOPED_TRACE("step " + std::to_string(step) + ", action " + std::to_string(action));
        ASSERT_EQ(editor.boundary(), plain.current);
        ASSERT_EQ(editor.node(), plain.node);
        ASSERT_EQ(editor.status(), plain.status);
        ASSERT_EQ(editor.boundaryTexts(), plain.texts());
        ASSERT_EQ(disk.files, plain.files);
        for (std::size_t b = 0; b < plain.all.size(); ++b) {
            const SBndFile& held = document.GetWorkspace().boundaries.GetAt(static_cast<int>(b));
            Nodes nodes;
            for (int i = 0; i < held.NodeCount(); ++i) {
                nodes.push_back({held.x.GetAt(i), held.y.GetAt(i), held.z.GetAt(i)});
            }
            ASSERT_EQ(nodes, plain.all[b].nodes);
            ASSERT_EQ(held.path, plain.all[b].path);
        }
        const Node shown = plain.node < 0 ? Node{} : plain.nodes()[static_cast<std::size_t>(plain.node)];
        ASSERT_EQ(editor.nodePosition(), (Position{shown[0] * 0.001, shown[1] * 0.001, shown[2] * 0.001}));
    }
    EXPECT_GT(port.refusals.size(), 50U);  // damaged files
    EXPECT_GT(port.retryQuestions.size(), 50U);
    EXPECT_GT(port.questions.size(), 20U);
}

TEST(GridEditor, TriesFilesAgainAndRefusesWhatIsNotThere) {
    const test::TempFolder folder;
    RecordingPort port;
    CVorl_ADVDoc document(port);
    GridEditor editor(document);
    const std::filesystem::path path = folder / "walls" / "left.bnd";
    EXPECT_EQ(editor.newBoundary(path), Outcome::Cancelled);
    EXPECT_EQ(port.retryQuestions, (std::vector<std::string>{"Cannot find data file: " + path.string()}));
    EXPECT_TRUE(document.GetWorkspace().boundaries.IsEmpty());
    EXPECT_FALSE(document.IsModified());
    EXPECT_EQ(editor.addNode({}), Outcome::Refused);
    EXPECT_THROW(editor.chooseNode(0), InvalidArgument);

    port.beforeRetry = [&] { return std::filesystem::create_directory(folder / "walls"); };
    EXPECT_EQ(editor.newBoundary(path), Outcome::Done);
    EXPECT_EQ(editor.addNode({0.29, -0.0005, 1.2345}), Outcome::Done);
    EXPECT_EQ(editor.saveBoundary(path), Outcome::Done);
    EXPECT_EQ(test::slurp(path), "0.290000 0.000000 1.234000\n");
    EXPECT_EQ(document.InsertNode(0, 2, {}), Outcome::Refused);
    test::spill(folder / "kept.avp", std::string("\x0cVersion 1.59", 13));
    EXPECT_EQ(editor.saveBoundary(folder / "kept.avp"), Outcome::Refused);
    EXPECT_EQ(editor.boundaryPath(), path.string());
}

TEST(GridEditor, PlacesTheFirstProbeOfAFileWithoutASelectedOne) {
    RecordingPort port;
    CVorl_ADVDoc document(port);
    document.SimulateTimeSeries(sampleParameters(), 7);
    GridEditor editor(document);
    EXPECT_EQ(editor.moveProbe({1.25, std::nullopt, -0.0333}), Outcome::Done);
    EXPECT_EQ(editor.probePosition(), (Position{1.25 / 0.001 * 0.001, 0.0, -0.0333 / 0.001 * 0.001}));
    EXPECT_EQ(editor.newBoundary("/dev/null"), Outcome::Done);
    editor.addNode({});
    editor.moveNode({1.0, std::nullopt, std::nullopt});
    EXPECT_EQ(port.reports.back(), "Node 1 moved");
}

TEST(GridEditor, PreviewTitlesFollowThePlaneUnlessTheUserWroteThem) {
    RecordingPort port;
    CVorl_ADVDoc document(port);
    GridEditor editor(document);
    EXPECT_EQ(editor.plane(), 2);
    FrameAttributesType frame = editor.frame();
    frame.yTitle = "Depth";
    editor.setFrame(frame);
    editor.choosePlane(1);
    EXPECT_EQ(editor.frame().xTitle + editor.frame().yTitle, "XDepth");
    EXPECT_THROW(editor.choosePlane(3), InvalidArgument);
}

}  // namespace
}  // namespace vorlan
