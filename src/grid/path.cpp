// SPDX-License-Identifier: MIT
#include "grid/path.h"

#include <cmath>

#include "base/number.h"
#include "base/text.h"

namespace grid {

namespace {

constexpr double kEquatorialRadius = 6378.14;
constexpr double kPolarRadius = 6356.755;
constexpr double kAntipodeThreshold = 0.014;
constexpr double kAntipodeAmplitude = 1.8;
constexpr int kStretches = 4;
constexpr double kMilesPerKilometre = 0.62138;
constexpr double kShortest = 0.5, kLongest = 20003.5;

double halfPi() { return 2 * std::atan(1.0); }
double pi() { return halfPi() * 2; }
double degree() { return halfPi() / 90; }

bool within(char c, char first, char last) { return c >= first && c <= last; }

/// The arc cosine through the arctangent; x itself is brought into -1 to 1.
double arcCosine(double& x) {
    if (x >= 1) {
        x = 1;
        return 0;
    }
    if (x <= -1) {
        x = -1;
        return pi();
    }
    return halfPi() - std::atan(x / std::sqrt(1 - x * x));
}

/// Mean radii of the meridian and of the normal, and how far they reach to either side of the mean.
struct Radii {
    double meanMeridian, meridianHalfSpan, meanNormal, normalHalfSpan;
};

Radii radiiOfTheEarth() {
    const double a = kEquatorialRadius, b = kPolarRadius;
    const double r2 = (a * a - b * b) / (b * b) + 1;
    const double r = std::sqrt(r2);
    const double c = a * a / b;
    const double meridian = c * (1 + (1 / r) / r2) / 2;
    const double normal = (c + a) / 2;
    return {meridian, c - meridian, normal, c - normal};
}

/// What the great circle needs of its start: latitude, and the cosine and angle of its azimuth there.
struct Start {
    double sinLatitude, cosLatitude, cosAzimuth, azimuth;
};

double meanRadius(const Start& start, double angle, const Radii& radii) {
    const double step = angle / kStretches;
    double along = -step / 2, sum = 0;
    for (int stretch = 0; stretch < kStretches; ++stretch) {
        along += step;
        double sinLatitude =
            start.cosAzimuth * start.cosLatitude * std::sin(along) + start.sinLatitude * std::cos(along);
        const double colatitude = arcCosine(sinLatitude);
        const double sinAzimuth =
            colatitude != 0 ? std::sin(start.azimuth) * start.cosLatitude / std::sin(colatitude) : 0;
        double azimuth = halfPi() * sinAzimuth;
        if (std::fabs(sinAzimuth) < 1)
            azimuth = std::atan(sinAzimuth / std::sqrt(1 - sinAzimuth * sinAzimuth));
        const double harmonic = std::cos(2 * colatitude);
        const double meridian = harmonic * radii.meridianHalfSpan + radii.meanMeridian;
        const double normal = harmonic * radii.normalHalfSpan + radii.meanNormal;
        sum += (normal + meridian) / 2 + std::cos(2 * azimuth) * (meridian - normal) / 2;
    }
    return sum / kStretches;
}

/// Near the antipode the shortest path no longer follows the great circle.
double antipodeCorrection(double angle, double radius, const Radii& radii) {
    const double a = kEquatorialRadius;
    const double first = pi() * (2 * radii.meanMeridian / a - 1);
    const double gap = a - radii.meanMeridian;
    const double scale = std::pow((1 - radii.meanMeridian / a) * (pi() * 2), 2);
    double correction = 0;
    if (angle - first > 0)
        correction = (radius - radii.meanMeridian) * (angle - first) * (angle - first) / scale;
    const double swing = std::sin((a - radius) * pi() / gap);
    const double second = (1 - kAntipodeThreshold * swing) * first;
    if (angle > second) {
        correction +=
            std::sin(pi() * std::sqrt((pi() - angle) / (pi() - second))) * swing * kAntipodeAmplitude;
    }
    return correction;
}

}  // namespace

std::optional<Position> positionOf(std::string_view locator) {
    const std::size_t length = locator.size();
    if (length != 2 && length != 4 && length != 6) return std::nullopt;
    if (!within(locator[0], 'A', 'R') || !within(locator[1], 'A', 'R')) return std::nullopt;
    Position position{10.0 * locator[1] - 740, 20.0 * locator[0] - 1480};
    if (length == 2) return Position{position.latitude + 5, position.longitude + 10};
    if (!within(locator[2], '0', '9') || !within(locator[3], '0', '9')) return std::nullopt;
    position.longitude += 2.0 * locator[2] - 96;
    position.latitude += locator[3] - 48;
    if (length == 4) return Position{position.latitude + 0.5, position.longitude + 1};
    if (!within(locator[4], 'A', 'X') || !within(locator[5], 'A', 'X')) return std::nullopt;
    return Position{position.latitude + (locator[5] - 64.5) / 24,
                    position.longitude + (locator[4] - 64.5) / 12};
}

Path pathBetween(const Position& from, const Position& to) {
    const double p1 = from.latitude * degree(), p2 = to.latitude * degree();
    const double dl = to.longitude * degree() - from.longitude * degree();
    const double sp1 = std::sin(p1), sp2 = std::sin(p2), cp1 = std::cos(p1), cp2 = std::cos(p2),
                 cdl = std::cos(dl);
    double cosAngle = sp1 * sp2 + cdl * cp2 * cp1;
    const double angle = arcCosine(cosAngle);
    double cosAzimuth = 0;
    if (std::fabs(cosAngle) < 1) {
        cosAzimuth = (cp1 * sp2 - cdl * sp1 * cp2) / std::sqrt(1 - cosAngle * cosAngle);
    }
    double azimuth = arcCosine(cosAzimuth);
    const Radii radii = radiiOfTheEarth();
    const double radius = meanRadius({sp1, cp1, cosAzimuth, azimuth}, angle, radii);
    const double distance = angle * (radius - antipodeCorrection(angle, radius, radii));
    if (distance < kShortest || distance > kLongest) {
        azimuth = 0;
    } else if ((pi() - std::fabs(dl)) * dl < 0) {
        azimuth = pi() * 2 - azimuth;
    }
    return {distance, azimuth / degree()};
}

long wholeKilometres(const Path& path) { return static_cast<long>(std::floor(path.distance + 0.5)); }

int wholeDegrees(const Path& path) { return static_cast<int>(std::floor(path.heading + 0.5)); }

std::string shownLocator(std::string_view upperCase) {
    const std::string_view last = text::right(upperCase, 2);
    std::string shown(text::left(upperCase, 4));
    if (text::columns(upperCase, 3, 4) != last && upperCase.size() == 6) shown += text::lower(last);
    return shown;
}

std::string headingText(std::string_view upperCase, const Path& path, bool miles) {
    const double kilometres = static_cast<double>(wholeKilometres(path));
    const double shown = miles ? kilometres * kMilesPerKilometre : kilometres;
    const std::string distance =
        shown == 0 ? "0" : number::toText(static_cast<std::int64_t>(std::floor(shown + 0.5)));
    return shownLocator(upperCase) + "   " + number::toText(wholeDegrees(path)) + "\xB0   " + distance +
           (miles ? " Mi." : " kM.");
}

}  // namespace grid
