#include "stages/PaneTexts.h"

#include "model/Text.h"

namespace vorlan {

namespace {

void decode(std::string& text) {
    text = utf8Text(text);
}

struct Decoder {
    void operator()(std::monostate) const {}
    void operator()(PaneMessage& message) const { decode(message.text); }
    void operator()(Diagram& diagram) const {
        FrameAttributesType& frame = diagram.frame;
        for (std::string* text : {&frame.plotTitle, &frame.xTitle, &frame.yTitle, &frame.legendTitle}) {
            decode(*text);
        }
        for (PlotSeries& series : diagram.plot.series) {
            decode(series.attributes.legendText);
        }
        for (std::string& note : diagram.notes) {
            decode(note);
        }
        for (Diagram::PointLabel& label : diagram.labels) {
            decode(label.text);
            decode(label.detail);
        }
    }
    void operator()(TableContent& table) const {
        decode(table.title);
        for (std::string& header : table.headers) {
            decode(header);
        }
        for (TableContent::Row& row : table.rows) {
            decode(row.title);
        }
        decode(table.note);
    }
    void operator()(TextPanel& panel) const {
        for (std::string& line : panel.lines) {
            decode(line);
        }
    }
};

}  // namespace

void decodeTexts(PaneContent& content) {
    std::visit(Decoder{}, content);
}

}  // namespace vorlan
