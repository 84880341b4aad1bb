// Steps of the measuring grid: the plans, the probes' positions, boundaries and their nodes.
#include "recipes/RecipeSteps.h"
#include "recipes/StepsOfCommands.h"

namespace vorlan {

namespace {

Outcome runVectors(StepContext& context, const StepValues& values) {
    return context.document.VectorsOfMeanVelocities(settingsOf<VectorSettings>(values));
}

constexpr const char* kCoordinates[] = {"x", "y", "z"};

PositionChange changeOf(const StepValues& values) {
    PositionChange change;
    for (std::size_t axis = 0; axis < change.size(); ++axis) {
        if (values.has(kCoordinates[axis])) {
            change[axis] = values.real(kCoordinates[axis]);
        }
    }
    return change;
}

Outcome runPosition(StepContext& context, const StepValues& values) {
    return context.document.PlaceProbe(context.place.file, context.place.probe, changeOf(values));
}

void chooseBoundary(GridEditor& grid, const StepValues& values) {
    const int index = values.has("boundary") ? std::max(values.integer("boundary"), 0) - 1 : grid.boundary();
    if (index != grid.boundary() || index < 0) {
        grid.chooseBoundary(index);
    }
}

void chooseNode(GridEditor& grid, const StepValues& values) {
    chooseBoundary(grid, values);
    grid.chooseNode(values.has("node") ? values.integer("node") : grid.node());
}

/// Runs an action of the editor; a boundary or node that is not there is refused.
template <class Action>
Outcome onGrid(StepContext& context, Action action) {
    try {
        return action(context.grid);
    } catch (const InvalidArgument& error) {
        context.port.refuse(error.what());
        return Outcome::Refused;
    }
}

Outcome runBoundaryNew(StepContext& context, const StepValues& values) {
    return context.grid.newBoundary(values.text("path"));
}

Outcome runBoundaryOpen(StepContext& context, const StepValues& values) {
    return context.grid.openBoundary(values.text("path"));
}

Outcome runBoundarySave(StepContext& context, const StepValues& values) {
    return onGrid(context, [&](GridEditor& grid) {
        chooseBoundary(grid, values);
        return grid.saveBoundary(values.has("path") ? values.text("path") : grid.boundaryPath());
    });
}

Outcome runBoundaryClose(StepContext& context, const StepValues& values) {
    return onGrid(context, [&](GridEditor& grid) {
        chooseBoundary(grid, values);
        return grid.closeBoundary();
    });
}

Outcome runNodeInsert(StepContext& context, const StepValues& values) {
    return onGrid(context, [&](GridEditor& grid) {
        chooseBoundary(grid, values);
        const Position position{values.real("x"), values.real("y"), values.real("z")};
        return values.has("node") ? grid.insertNode(values.integer("node"), position) : grid.addNode(position);
    });
}

Outcome runNodeSet(StepContext& context, const StepValues& values) {
    return onGrid(context, [&](GridEditor& grid) {
        chooseNode(grid, values);
        return grid.moveNode(changeOf(values));
    });
}

Outcome runNodeRemove(StepContext& context, const StepValues& values) {
    return onGrid(context, [&](GridEditor& grid) {
        chooseNode(grid, values);
        return grid.removeNode();
    });
}

std::string faultOfPath(const std::string& path) {
    return path.empty() ? "is empty" : path.find('\0') != std::string::npos ? "holds a character that no path has" : "";
}

StepKind gridStep(std::string name, std::vector<KeyRule> keys, Outcome (*run)(StepContext&, const StepValues&)) {
    return {.name = std::move(name),
            .keys = std::move(keys),
            .run = run,
            .command = Command::GridEditor,
            .onWorkspace = true};
}

}  // namespace

std::optional<std::string> boundaryOutputOf(const StepKind& kind, const StepValues& values) {
    const bool writes = kind.run == runBoundaryNew || kind.run == runBoundarySave;
    return writes && values.has("path") ? std::optional(values.text("path")) : std::nullopt;
}

NamedStep stepOf(const VectorSettings& settings) {
    return {"vectors", valuesOf(settings)};
}

NamedStep stepOf(const PositionChange& position) {
    NamedStep step{"position", {}};
    for (std::size_t axis = 0; axis < position.size(); ++axis) {
        if (position[axis]) {
            step.values.set(kCoordinates[axis], *position[axis]);
        }
    }
    return step;
}

std::vector<StepKind> gridSteps() {
    const KeyRule boundary = integerKey("boundary", {});
    const KeyRule node = integerKey("node", {});
    return {
        {.name = "vectors",
         .keys = keysOf<VectorSettings>(),
         .run = runVectors,
         .command = Command::MeanVelocityVectors},
        {.name = "position", .keys = {realKey("x", {}), realKey("y", {}), realKey("z", {})}, .run = runPosition},
        gridStep("boundary-new", {required(textKey("path", {}, faultOfPath))}, runBoundaryNew),
        gridStep("boundary-open", {required(textKey("path", {}, faultOfPath))}, runBoundaryOpen),
        gridStep("boundary-save", {boundary, textKey("path", {}, faultOfPath)}, runBoundarySave),
        gridStep("boundary-close", {boundary}, runBoundaryClose),
        gridStep("node-insert", {boundary, node, realKey("x", 0.0), realKey("y", 0.0), realKey("z", 0.0)},
                 runNodeInsert),
        gridStep("node-set", {boundary, node, realKey("x", {}), realKey("y", {}), realKey("z", {})}, runNodeSet),
        gridStep("node-remove", {boundary, node}, runNodeRemove),
    };
}

}  // namespace vorlan
