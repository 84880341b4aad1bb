#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/CVorl_ADVDoc.h"
#include "model/PageLayout.h"
#include "model/SettingField.h"
#include "model/Stages.h"
#include "plot/Pictures.h"
#include "recipes/TextValues.h"
#include "stages/PageDescription.h"
#include "stages/PaneDescription.h"

namespace vorlan {

/// Names of the stages, by stage number.
const std::vector<std::string>& stageNames();
/// Names of the panes, by pane number.
const std::vector<std::string>& paneNames();
/// Names of the physical values, by their code.
const std::vector<std::string>& physicalValueNames();

inline constexpr int kUsualDpi = 96;
inline constexpr Range kDpiRange{10, 2400};
/// Names of what the right bottom pane shows, the table first.
const std::vector<std::string>& rightBottomNames();

struct RenderRequest {
    Stage stage = Stage::PreProcessing;
    std::optional<Pane> pane;  ///< all four without one
    PhysicalValue value = PhysicalValue::Velocities;
    PictureSize size;
    int dpi = kUsualDpi;                           ///< of a PNG
    std::optional<bool> showTable;                 ///< side of a right bottom pane that has two; as it opens
    std::vector<std::array<double, 3>> triangles;  ///< slope triangles: from, to, y at from
    PaperSize paper;                               ///< of the page that a PDF of all panes is
    std::string path;                              ///< its extension decides the format
};

/// True for a path that takes a printed page: a PDF of all panes.
bool isPage(const std::optional<Pane>& pane, const std::string& path);
/// Why a page takes no size of a picture, or a picture no paper.
const char* faultOfSize(bool page);
/// Why a picture of this path takes no dots per inch; empty for one that does.
std::string faultOfDpi(const std::string& path);

/// Why no picture can be written to the path; empty when one can.
std::string faultOfPicturePath(const std::string& path);

/// Why the request's triangles cannot be drawn; empty when they can, or when there is none.
std::string faultOfTriangles(const RenderRequest& request);

/// What the tool of the window would tell about the points where the request's triangles begin.
std::vector<std::string> triangleReadOuts(const CVorl_ADVDoc& document, const RenderRequest& request);

/// Draws what the window's panes show. The toolkit is loaded with the first picture: processes that work on several
/// workspaces are started before.
class Renderer {
  public:
    explicit Renderer(PicturesSource source) : source_(std::move(source)) {}

    /// The bytes of the picture of the selected probe. Selects the stage; RunError Refused when the probe has not
    /// got it.
    std::string render(CVorl_ADVDoc& document, const RenderRequest& request);
    /// The bytes of the picture of what is wanted. The pane of wanted counts when the request has one; its stage, value
    /// and triangles are wanted's. workspace names a page.
    std::string draw(const PaneRequest& wanted, const std::filesystem::path& workspace, const RenderRequest& request);
    /// The bytes of a PDF with these pages, which must be printable on this paper. told is called before each page with
    /// its number, from 0.
    std::string report(const Workspace& workspace, const std::string& title, const std::vector<ReportPage>& pages,
                       const PaperSize& paper, const std::function<void(std::size_t)>& told);

  private:
    Pictures& pictures();

    PicturesSource source_;
    std::unique_ptr<Pictures> pictures_;
};

}  // namespace vorlan
