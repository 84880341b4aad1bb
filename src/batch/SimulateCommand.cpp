#include "analysis/Simulation.h"
#include "batch/Options.h"
#include "batch/Subcommands.h"
#include "model/Index.h"
#include "recipes/TextValues.h"

namespace vorlan {

namespace {

namespace limits = simulation_range;

// The dialog takes any; with a larger one the noise cannot be stored.
constexpr Range kNoise{-1e5, 1e5};

struct SimulateOptions {
    std::string out;
    bool append = false;
    SimulationParameters parameters;
    std::array<double, 3> compass{};
    std::array<double, 3> mean{};
    std::array<double, 3> noiseMean{};
    std::array<double, 3> noiseVariance{};
    std::array<std::vector<Harmonic>, 3> harmonics;
    std::optional<std::uint64_t> seed;
};

double partOf(const std::string& text, const char* what, const Range& range) {
    const std::optional<double> value = parseReal(text);
    if (!value || !range.holds(*value)) {
        throw CLI::ValidationError("--harmonic", std::string(what) + " \"" + text + "\" is not a number between " +
                                                     shown(range.minimum) + " and " + shown(range.maximum));
    }
    return *value;
}

void takeHarmonic(SimulateOptions& options, const std::string& text) {
    const std::vector<std::string> parts = splitText(text, ':');
    const int component = componentOfLetter(parts[0]);
    if (parts.size() != 4 || component < 0) {
        throw CLI::ValidationError("--harmonic",
                                   "\"" + text + "\" is not COMPONENT:AMPLITUDE:PERIOD:PHASE, as in u:10:2.5:90");
    }
    std::vector<Harmonic>& list = options.harmonics[asSize(component)];
    list.push_back({partOf(parts[1], "amplitude", limits::kAmplitude), partOf(parts[2], "period", limits::kPeriod),
                    partOf(parts[3], "phase", limits::kPhase)});
    if (list.size() > asSize(kMaximumHarmonics)) {
        throw CLI::ValidationError("--harmonic", "a component has at most " + std::to_string(kMaximumHarmonics));
    }
}

SimulationParameters parametersOf(const SimulateOptions& options, bool noise) {
    SimulationParameters parameters = options.parameters;
    parameters.heading = options.compass[0];
    parameters.pitch = options.compass[1];
    parameters.roll = options.compass[2];
    parameters.whiteNoise = noise;
    std::size_t harmonics = 1;
    for (std::size_t c = 0; c < parameters.components.size(); ++c) {
        SimulationParameters::Component& component = parameters.components[c];
        component.meanVelocity = options.mean[c];
        component.noiseMean = options.noiseMean[c];
        if (noise) {
            component.noiseVariance = options.noiseVariance[c];
        }
        if (!options.harmonics[c].empty()) {
            component.harmonics = options.harmonics[c];
        }
        harmonics = std::max(harmonics, component.harmonics.size());
    }
    // One number for all components: those with fewer are still where they have none.
    for (SimulationParameters::Component& component : parameters.components) {
        component.harmonics.resize(harmonics);
    }
    parameters.harmonicCount = asInt(harmonics);
    return parameters;
}

std::uint64_t seedOf(const SimulateOptions& options) {
    return options.seed ? *options.seed : seedOfClock();
}

void addVelocityOptions(CLI::App& app, SimulateOptions& options) {
    constexpr Ranges kVelocities{limits::kVelocity, limits::kVelocity, limits::kVelocity};
    addTriple(app, "--mean", options.mean, kVelocities, "U,V,W", "Mean velocities, cm/s (-200 to 200)")
        ->default_str("50,5,0");
    CLI::Option* variance = addTriple(app, "--noise-variance", options.noiseVariance, {kNoise, kNoise, kNoise}, "U,V,W",
                                      "White noise; each number is used as the standard deviation, cm/s");
    addTriple(app, "--noise-mean", options.noiseMean, kVelocities, "U,V,W", "Mean of the noise, cm/s (-200 to 200)")
        ->needs(variance)
        ->default_str("0,0,0");
    app.add_option_function<std::vector<std::string>>(
           "--harmonic",
           [&options](const std::vector<std::string>& texts) {
               for (const std::string& text : texts) {
                   takeHarmonic(options, text);
               }
           },
           "A sine, as in u:10:2.5:90: component u, v or w, amplitude in cm/s\n(-200 to 200), period in s, phase in "
           "degrees "
           "(0 to 360); up to 25\nof each component")
        ->allow_extra_args(false)
        ->type_name("C:AMP:PERIOD:PHASE");
}

}  // namespace

Subcommand addSimulateCommand(CLI::App& program) {
    CLI::App* app = program.add_subcommand("simulate", "Make a record of known content: means, sines and noise");
    const auto options = std::make_shared<SimulateOptions>();
    SimulationParameters& p = options->parameters;
    for (std::size_t c = 0; c < options->mean.size(); ++c) {
        options->mean[c] = p.components[c].meanVelocity;
    }
    addWorkspaceOutput(*app, options->out, "The workspace to write")->required();
    app->add_flag("--append", options->append, "Add the record to that workspace as a further data file");
    app->add_option("--name", p.fileName, "Name of the data file")->type_name("TEXT")->capture_default_str();
    addReal(*app, "--interval", p.samplingInterval, limits::kInterval, "S", "Sampling interval, s (0.04 to 100)")
        ->default_str(shown(p.samplingInterval));
    addReal(*app, "--length", p.length, limits::kLength, "S", "Length of the record, s (0.08 to 1000)")
        ->default_str(shown(p.length));
    addReal(*app, "--correlation", p.correlation, limits::kCorrelation, "PCT", "Correlation score, % (0 to 100)")
        ->default_str(shown(p.correlation));
    addReal(*app, "--snr", p.signalToNoise, limits::kSignalToNoise, "DB", "Signal-to-noise ratio, dB (0 to 50)")
        ->default_str(shown(p.signalToNoise));
    CLI::Option* compass =
        addTriple(*app, "--compass", options->compass, {limits::kHeading, limits::kTilt, limits::kTilt},
                  "HEADING,PITCH,ROLL", "Compass and tilt, degrees (0 to 360, -30 to 30, -30 to 30); none\nwithout it");
    addVelocityOptions(*app, *options);
    addTriple(*app, "--position", p.position, kPositions, "X,Y,Z", "Position of the sampling volume, m")
        ->default_str("0,0,0");
    app->add_option_function<std::string>(
           "--seed",
           [options](const std::string& text) {
               const std::optional<long long> seed = parseInteger(text);
               if (!seed || *seed < 0) {
                   throw CLI::ValidationError("--seed", "\"" + text + "\" is not an integer of 0 or more");
               }
               options->seed = static_cast<std::uint64_t>(*seed);
           },
           "Seed of all that is random: the same seed, the same record")
        ->type_name("N");

    const CLI::Option* noise = app->get_option("--noise-variance");
    return {app, [options, compass, noise](Console& console) {
                options->parameters.compass = compass->count() > 0;
                requireReplaceable(options->out);
                SilentPort port;
                CVorl_ADVDoc document(port);
                std::optional<WorkspaceUpdate> update;
                if (options->append) {
                    update.emplace(document, options->out, console);
                }
                document.SimulateTimeSeries(parametersOf(*options, noise->count() > 0), seedOf(*options));
                // The window then opens on the record.
                document.SelectProbe(0);
                update ? update->save() : saveDocument(document, options->out);
                return ExitStatus::Done;
            }};
}

}  // namespace vorlan
