#include "ceremony/show/CeremonyGridModel.h"

#include "base/RandomSource.h"
#include "ceremony/show/CeremonyTextImages.h"
#include "ceremony/show/VantleCopy.h"

#include <cmath>
#include <cstddef>
#include <numbers>

namespace vantle {

namespace {

// A full turn throughout the ceremony: slightly less than 2π.
constexpr double kTurn = 6.283;

constexpr double kEmptyShare = 0.45;  // share of cells without a front dot
constexpr double kBackShare = 0.3;    // share of those with a back dot
constexpr double kBrightShare = 0.28; // share of large front dots
constexpr double kBackLinger = 0.15;  // seconds that a back dot outlives the front dots
constexpr double kColumnJitter = 0.55;
constexpr double kRowJitter = 0.1;
constexpr int kColors = 5;

constexpr int kChargers = 170;
constexpr int kSparks = 18;

std::vector<double> jitters(int count, double bound, RandomSource& random) {
    std::vector<double> table(static_cast<std::size_t>(count));
    for (double& jitter : table)
        jitter = random.below(bound);
    return table;
}

/// The lifetime of a cell's dot in each script.
class Schedule {
public:
    Schedule(CeremonyVariant variant, const CeremonyGrid& grid, RandomSource& random)
        : m_variant(variant)
        , m_grid(grid)
        , m_centerX(grid.width / 2)
        , m_centerY(grid.height / 2)
        , m_farthest(std::hypot(m_centerX, m_centerY))
        , m_columns(jitters(grid.cols, kColumnJitter, random))
        , m_rows(jitters(grid.rows, kRowJitter, random)) {}

    struct Life {
        double born;
        double vanish;
    };

    [[nodiscard]] Life life(int col, int row, double jitter) const {
        const double x = m_grid.cell * (col + 0.5);
        const double y = m_grid.cell * (row + 0.5);
        const double xn = x / m_grid.width;
        const double yn = y / m_grid.height;
        const double dx = x - m_centerX;
        const double dy = y - m_centerY;
        const double dn = std::hypot(dx, dy) / m_farthest;
        const double j = jitter;
        switch (m_variant) {
        case CeremonyVariant::Nova:
            return {dn + 0.5 + 0.06 * j, (1 - dn) * 0.95 + 1.7 + 0.22 * j};
        case CeremonyVariant::Rain:
            return {0.85 * yn + m_columns[static_cast<std::size_t>(col)] + 0.15 + 0.05 * j,
                    0.55 * yn + 1.9 + 0.18 * j};
        case CeremonyVariant::Scan:
            return {1.35 * xn + 0.15 + 0.04 * j, 0.72 * xn + 1.85 + 0.1 * j};
        case CeremonyVariant::Spiral: {
            const double a = (std::atan2(dy, dx) + std::numbers::pi) / kTurn;
            return {1.05 * dn + 0.15 + 0.45 * a + 0.03 * j,
                    (1 - dn) * 0.6 + 1.85 + (1 - a) * 0.25 + 0.1 * j};
        }
        case CeremonyVariant::Wall:
            return {1.25 * (m_grid.height - y) / m_grid.height + 0.15 +
                        m_rows[static_cast<std::size_t>(row)] + 0.03 * j,
                    0.55 * yn + 1.85 + 0.15 * j};
        }
        return {};
    }

private:
    CeremonyVariant m_variant;
    CeremonyGrid m_grid;
    double m_centerX;
    double m_centerY;
    double m_farthest; ///< from the centre to a corner
    std::vector<double> m_columns;
    std::vector<double> m_rows;
};

void addFrontDot(CeremonyGridModel& model, int index, Schedule::Life life, RandomSource& random) {
    model.fieldIndex.push_back(index);
    model.fieldBorn.push_back(static_cast<float>(life.born));
    model.fieldVanish.push_back(static_cast<float>(life.vanish));
    model.fieldColor.push_back(static_cast<std::uint8_t>(random.index(kColors)));
    model.fieldBright.push_back(random.uniform() < kBrightShare ? 1 : 0);
    model.fieldPhase.push_back(static_cast<float>(random.below(kTurn)));
    model.fieldFlicker.push_back(static_cast<std::uint8_t>(random.index(2)));
}

void addBackDot(CeremonyGridModel& model, int index, Schedule::Life life, RandomSource& random) {
    model.backIndex.push_back(index);
    model.backBorn.push_back(static_cast<float>(life.born));
    model.backVanish.push_back(static_cast<float>(life.vanish + kBackLinger));
    model.backColor.push_back(static_cast<std::uint8_t>(random.index(kColors)));
    model.backPhase.push_back(static_cast<float>(random.below(kTurn)));
}

void reserveDots(CeremonyGridModel& model) {
    const auto cells = static_cast<std::size_t>(model.cols) * static_cast<std::size_t>(model.rows);
    model.fieldIndex.reserve(cells);
    model.fieldBorn.reserve(cells);
    model.fieldVanish.reserve(cells);
    model.fieldColor.reserve(cells);
    model.fieldBright.reserve(cells);
    model.fieldPhase.reserve(cells);
    model.fieldFlicker.reserve(cells);
}

void placeDots(CeremonyGridModel& model, const Schedule& schedule, RandomSource& random) {
    reserveDots(model);
    for (int row = 0; row < model.rows; ++row) {
        for (int col = 0; col < model.cols; ++col) {
            const int index = row * model.cols + col;
            const double u = random.uniform();
            const double v = random.uniform();
            if (u >= kEmptyShare) {
                addFrontDot(model, index, schedule.life(col, row, v), random);
            } else if (v < kBackShare) {
                const double jitter = random.uniform();
                addBackDot(model, index, schedule.life(col, row, jitter), random);
            }
        }
    }
}

void addChargers(CeremonyGridModel& model, RandomSource& random) {
    const double centerX = model.width / 2;
    const double centerY = model.height / 2;
    for (int i = 0; i < kChargers; ++i) {
        const double angle = random.below(kTurn);
        const double distance = std::hypot(centerX, centerY) * random.uniform() * 0.8 + 140;
        model.chargerX.push_back(static_cast<float>(centerX + std::cos(angle) * distance));
        model.chargerY.push_back(static_cast<float>(centerY + std::sin(angle) * distance));
        const int color = i % kColors;
        model.chargerColor.push_back(static_cast<std::uint8_t>(color >= 3 ? color : 0));
    }
}

void addSparks(CeremonyGridModel& model, RandomSource& random) {
    for (int i = 0; i < kSparks; ++i) {
        const double spread = static_cast<double>(i) / kSparks * kTurn;
        model.sparkAngle.push_back(static_cast<float>(spread + random.below(0.33)));
        model.sparkSpeed.push_back(static_cast<float>(random.below(700) + 900));
        model.sparkLength.push_back(static_cast<float>(random.below(90) + 70));
    }
}

} // namespace

CeremonyGridModel CeremonyGridModel::choreograph(CeremonyVariant variant, QSizeF size,
                                                 RandomSource& random) {
    const CeremonyGrid grid = CeremonyGrid::forScreen(size);
    CeremonyGridModel model;
    model.variant = variant;
    model.width = grid.width;
    model.height = grid.height;
    model.cols = grid.cols;
    model.rows = grid.rows;
    model.cell = grid.cell;
    placeDots(model, Schedule(variant, grid, random), random);
    if (variant == CeremonyVariant::Nova) {
        addChargers(model, random);
        addSparks(model, random);
    }
    return model;
}

CeremonyGridModel CeremonyGridModel::build(CeremonyVariant variant, QSizeF size,
                                           const QString& skillName, RandomSource& random) {
    CeremonyGridModel model = choreograph(variant, size, random);
    const auto title = ceremonytext::titleImage(vantlecopy::ceremonyTitle(skillName), model.width);
    model.titleImage = title.image;
    model.titleSize = title.size;
    const auto caption = ceremonytext::captionImage(ceremonyvariant::caption(variant));
    model.captionImage = caption.image;
    model.captionSize = caption.size;
    return model;
}

} // namespace vantle
