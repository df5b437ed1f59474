#pragma once

// Points, vectors and the small arithmetic on them, their text form, and the two scales of a lamp's intensity.

#include <cmath>
#include <string>
#include <string_view>

// A point or a vector; the caller knows which, and in which unit.
struct fpt {
    double x = 0;
    double y = 0;
    double z = 0;

    // Scales the vector in place so that it becomes `length` long; 1 gives a unit vector.
    // A zero vector stays zero. A vector whose magnitude has no finite value is reported at level 1 and left alone.
    void make_unit(double length);

    friend bool operator==(const fpt&, const fpt&) = default; // exact; see fpt_equal for the tolerant comparison
};

// A point stored in bulk, where half the precision is enough.
struct fpt32 {
    float x = 0;
    float y = 0;
    float z = 0;

    friend bool operator==(const fpt32&, const fpt32&) = default;
};

inline fpt operator+(const fpt& a, const fpt& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline fpt operator-(const fpt& a, const fpt& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline fpt operator-(const fpt& a) {
    return {-a.x, -a.y, -a.z};
}
inline fpt operator*(const fpt& a, double factor) {
    return {a.x * factor, a.y * factor, a.z * factor};
}

// The scalar product.
inline double dot(const fpt& a, const fpt& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

// The vector square to both, by the right-hand rule; zero if they are co-linear.
inline fpt cross(const fpt& a, const fpt& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

// The length of the vector, in the unit of its components.
inline double magnitude(const fpt& vector) {
    return std::sqrt(dot(vector, vector));
}

// Says at level 1 that a vector has no finite magnitude.
void report_no_magnitude(const fpt& vector);

inline void fpt::make_unit(double length) {
    const double own_length = magnitude(*this);
    if (!std::isfinite(own_length)) [[unlikely]]
        report_no_magnitude(*this);
    else if (own_length != 0.0)
        *this = *this * (length / own_length);
}

// The value, or exactly 0 if its absolute value is below `limit`; a value of exactly `limit` stays.
inline double snap_to_zero(double value, double limit) {
    return value < limit && value > -limit ? 0.0 : value;
}

// What is nearer to zero than this is written as a plain 0, without a sign, whatever its unit.
inline constexpr double smallest_in_text = 1e-7;

// Settings that are points differ only if they lie further apart than this.
inline constexpr double point_tolerance = 1e-7;

// Added before floor when settings and colours are rounded: an exact half goes downwards.
inline constexpr double round_up_from = 0.49999;

inline constexpr double lumens_per_watt = 17.0; // of an incandescent bulb

// "(%.9g, %.9g, %.9g)", every component below 1e-7 in size written as 0.
std::string fpt_to_text(const fpt& point);

// The point that a text holds: "(1,2,3)", "V(1,2,3)" or "1,2,3", or the binary form, "B", a two-digit count of
// characters and that many characters of base64 with the three doubles in little-endian order. Never fails: a component
// that is missing or unreadable is 0.
fpt text_to_fpt(std::string_view text);

// Whether the points agree in every component: the difference is below `tolerance`, or, for large coordinates, below a
// tenth of `tolerance` as a ratio to the larger of the two. tolerance: in the unit of the points, above 0.
bool fpt_equal(const fpt& a, const fpt& b, double tolerance);

// The watts of a lamp of so many lumens, 17 lumens a watt, but at least 1.
// step: above 0, the result is rounded to a multiple of it; otherwise it is not rounded.
double lumens_to_watts(double lumens, double step);

// The lumens of a lamp of so many watts, at least 17. step: as for lumens_to_watts.
double watts_to_lumens(double watts, double step);
