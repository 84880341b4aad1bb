#include "plot/ColumnRuns.h"

#include <algorithm>
#include <utility>

#include "model/Index.h"

namespace vorlan {

namespace {

// Rows of one column: first .. end - 1.
struct Run {
    int first = 0;
    int end = 0;
};

// Joins the runs of neighbouring columns into rows. A row of pixels begins where a column has it and the one before
// has not.
class RowJoiner {
  public:
    RowJoiner(const Box& area, std::vector<Box>& rows)
        : area_(area), starts_(asSize(std::max(area.height(), 0))), rows_(rows) {}

    void addColumn(int x, Run run) {
        if (x < area_.left || x >= area_.right) {
            close();
            return;
        }
        run.first = std::clamp(run.first, area_.top, area_.bottom);
        run.end = std::clamp(run.end, run.first, area_.bottom);
        if (x != next_) {
            close();
        }
        if (run.end <= open_.first || open_.end <= run.first) {
            end(open_.first, open_.end, x);
            begin(run.first, run.end, x);
        } else {
            end(open_.first, run.first, x);
            end(run.end, open_.end, x);
            begin(run.first, open_.first, x);
            begin(open_.end, run.end, x);
        }
        open_ = run;
        next_ = x + 1;
    }
    void close() {
        end(open_.first, open_.end, next_);
        open_ = {};
    }

  private:
    void begin(int first, int bottom, int x) {
        for (int y = first; y < bottom; ++y) {
            starts_[asSize(y - area_.top)] = x;
        }
    }
    void end(int first, int bottom, int x) {
        for (int y = first; y < bottom; ++y) {
            rows_.push_back({starts_[asSize(y - area_.top)], y, x, y + 1});
        }
    }

    Box area_;
    std::vector<int> starts_;
    std::vector<Box>& rows_;
    Run open_;
    int next_ = 0;
};

// The run from one row to the one before another: what a stroke leaves in its first column.
void extend(Run& run, int from, int to) {
    run.first = std::min(run.first, to > from ? from : to + 1);
    run.end = std::max(run.end, to > from ? to : from + 1);
}

// A column takes as long as so many rows.
constexpr std::size_t kRowsOfAColumn = 10;

// A line that comes down into its column and turns up where it enters: the painter leaves a stroke that is steeper than
// this one pixel further down.
constexpr int kGentleSlope = 4;

void turnAtEntry(Run& run, const Spot& before, const Spot& entry) {
    if (entry.y + 1 == run.end && run.end - run.first > 1 && entry.y > before.y + kGentleSlope) {
        ++run.end;
    }
}

}  // namespace

ColumnRuns columnRuns(const Polylines& lines, const Box& area) {
    ColumnRuns result;
    RowJoiner rows(area, result.boxes);
    std::vector<Box> columns;
    for (const std::vector<Spot>& part : lines.parts) {
        for (std::size_t i = 0; i < part.size();) {
            const std::size_t entry = i;
            const int x = part[i].x;
            Run run{part[i].y, part[i].y + 1};
            for (; i < part.size() && part[i].x == x; ++i) {
                run.first = std::min(run.first, part[i].y);
                run.end = std::max(run.end, part[i].y + 1);
            }
            if (entry > 0 && part[entry - 1].x == x - 1) {
                turnAtEntry(run, part[entry - 1], part[entry]);
            }
            if (i < part.size()) {
                const Spot& last = part[i - 1];
                if (part[i].x == x + 1) {
                    if (part[i].y != last.y) {
                        extend(run, last.y, part[i].y);
                    }
                } else {
                    result.bridges.push_back({last, part[i]});
                }
            }
            rows.addColumn(x, run);
            const Box column = Box{x, run.first, x + 1, run.end}.common(area);
            if (column.width() > 0 && column.height() > 0) {
                columns.push_back(column);
            }
        }
        rows.close();
    }
    // Neighbours that have little in common are painted as they are.
    if (result.boxes.size() > kRowsOfAColumn * columns.size()) {
        result.boxes = std::move(columns);
    }
    return result;
}

}  // namespace vorlan
