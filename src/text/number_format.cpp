// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/number_format.h"

#include "text/decimal.h"
#include "text/number_input.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace orva {

namespace {

constexpr int singleDigits = 7;
constexpr int doubleDigits = 15;

std::string PadWithZeros(int number, int width) {
    const std::string digits = std::to_string(number);
    const auto missing =
        static_cast<std::size_t>(width) - std::min(digits.size(), static_cast<std::size_t>(width));
    return std::string(missing, '0') + digits;
}

std::string NotFiniteName(double x) {
    if (std::isnan(x))
        return "NaN";
    return x < 0.0 ? "-Inf" : "Inf";
}

// One form of a mask, taken apart.
struct Form {
    enum class Kind { Literal, WholePlace, FractionPlace, Point, Exponent };
    struct Piece {
        Kind kind;
        std::string_view text;
    };
    std::vector<Piece> pieces;
    int wholePlaces = 0;
    int fractionPlaces = 0;
    int wholeShown = 0;    // places from the first "0" to the separator
    int fractionShown = 0; // places from the separator to the last "0"
    int percents = 0;
    bool hasPoint = false;
    bool hasExponent = false;
};

// The length of an exponent group at the beginning of the text, 0 if there is none.
std::size_t ExponentLength(std::string_view text) {
    if (text.size() < 3 || text[0] != 'E' || (text[1] != '+' && text[1] != '-') || text[2] != '0')
        return 0;
    return std::min(text.find_first_not_of('0', 2), text.size());
}

void AddPlace(Form& form, std::string_view place) {
    const bool always = place == "0";
    if (form.hasPoint) {
        ++form.fractionPlaces;
        if (always)
            form.fractionShown = form.fractionPlaces;
        form.pieces.push_back({Form::Kind::FractionPlace, place});
    } else {
        ++form.wholePlaces;
        if (always || form.wholeShown > 0)
            ++form.wholeShown;
        form.pieces.push_back({Form::Kind::WholePlace, place});
    }
}

Form ParseForm(std::string_view text) {
    Form form;
    for (std::size_t at = 0; at < text.size();) {
        std::size_t length = 1;
        const char c = text[at];
        const std::size_t exponent = form.hasExponent ? 0 : ExponentLength(text.substr(at));
        if (c == '0' || c == '#') {
            AddPlace(form, text.substr(at, 1));
        } else if (c == '.' && !form.hasPoint) {
            form.hasPoint = true;
            form.pieces.push_back({Form::Kind::Point, text.substr(at, 1)});
        } else if (exponent > 0) {
            form.hasExponent = true;
            length = exponent;
            form.pieces.push_back({Form::Kind::Exponent, text.substr(at, length)});
        } else {
            form.percents += c == '%' ? 1 : 0;
            form.pieces.push_back({Form::Kind::Literal, text.substr(at, 1)});
        }
        at += length;
    }
    return form;
}

// The digits of one number as they go into the places of a form.
struct Digits {
    std::string whole;
    std::string fraction;
    int power = 0; // shown by the exponent group
    bool isZero = true;
    bool negative = false;
};

Digits DigitsFor(const Form& form, double x) {
    Decimal decimal = SignificantDigits(x, doubleDigits);
    if (!decimal.digits.empty())
        decimal.point += 2 * form.percents;
    Digits digits;
    if (form.hasExponent) {
        decimal.Round(std::max(form.wholePlaces + form.fractionPlaces, 1));
        if (!decimal.digits.empty()) {
            digits.power = decimal.point - form.wholePlaces;
            decimal.point = form.wholePlaces;
        }
    } else {
        decimal.Round(decimal.point + form.fractionPlaces);
    }
    digits.isZero = decimal.digits.empty();
    digits.negative = decimal.negative;
    digits.whole = decimal.Whole();
    digits.fraction = decimal.Fraction();
    const auto wholeShown = static_cast<std::size_t>(form.wholeShown);
    if (digits.whole.size() < wholeShown)
        digits.whole.insert(0, wholeShown - digits.whole.size(), '0');
    if (digits.fraction.size() < static_cast<std::size_t>(form.fractionShown))
        digits.fraction.resize(static_cast<std::size_t>(form.fractionShown), '0');
    return digits;
}

std::string ExponentText(std::string_view group, int power) {
    std::string text = "E";
    if (power < 0)
        text += '-';
    else if (group[1] == '+')
        text += '+';
    return text + PadWithZeros(std::abs(power), static_cast<int>(group.size()) - 2);
}

// The minus sign stands where the number begins, behind the literal text in front of it: "T = -5.0 K".
std::string Write(const Form& form, const Digits& digits, bool minus, NumberStyle style) {
    std::string text;
    const std::size_t wholePlaces = static_cast<std::size_t>(form.wholePlaces);
    std::size_t placesLeft = wholePlaces;
    std::size_t written = 0;
    std::size_t fractionWritten = 0;
    bool started = false;
    const auto writeWholeUpTo = [&](std::size_t placesBehind) {
        while (written + placesBehind < digits.whole.size())
            text += digits.whole[written++];
    };
    for (const Form::Piece& piece : form.pieces) {
        if (piece.kind != Form::Kind::Literal && !started) {
            started = true;
            if (minus)
                text += '-';
        }
        switch (piece.kind) {
        case Form::Kind::Literal:
            text += piece.text;
            break;
        case Form::Kind::WholePlace:
            writeWholeUpTo(--placesLeft);
            break;
        case Form::Kind::Point:
            writeWholeUpTo(0);
            text += style.decimal;
            break;
        case Form::Kind::FractionPlace:
            if (fractionWritten < digits.fraction.size())
                text += digits.fraction[fractionWritten++];
            break;
        case Form::Kind::Exponent:
            text += ExponentText(piece.text, digits.power);
            break;
        }
    }
    return text;
}

// The literal text before and behind the number is kept, that between its digits is not.
std::string WriteNotFinite(const Form& form, const std::string& word) {
    const auto isNumber = [](const Form::Piece& piece) { return piece.kind != Form::Kind::Literal; };
    const auto first = std::find_if(form.pieces.begin(), form.pieces.end(), isNumber);
    const auto last = std::find_if(form.pieces.rbegin(), form.pieces.rend(), isNumber).base();
    std::string text;
    for (auto piece = form.pieces.begin(); piece != first; ++piece)
        text += piece->text;
    text += word;
    for (auto piece = first == form.pieces.end() ? first : last; piece != form.pieces.end(); ++piece)
        text += piece->text;
    return text;
}

struct Mask {
    std::string_view positive;
    std::string_view negative; // empty if there is none
};

Mask SplitMask(std::string_view mask) {
    const std::size_t first = mask.find(';');
    if (first == std::string_view::npos)
        return {mask, {}};
    const std::string_view rest = mask.substr(first + 1);
    return {mask.substr(0, first), rest.substr(0, rest.find(';'))};
}

std::string ExponentForm(const Decimal& decimal, NumberStyle style) {
    std::string text(1, decimal.digits[0]);
    if (decimal.digits.size() > 1)
        text += style.decimal + decimal.digits.substr(1);
    return text + ExponentText("E+00", decimal.point - 1);
}

std::string GeneralDigits(double x, int count, NumberStyle style) {
    if (!std::isfinite(x))
        return NotFiniteName(x);
    const Decimal decimal = SignificantDigits(x, count);
    if (decimal.digits.empty())
        return "0";
    std::string text = decimal.negative ? "-" : "";
    const int placesBehind = static_cast<int>(decimal.digits.size()) - decimal.point;
    if (decimal.point > count || placesBehind > count)
        return text.append(ExponentForm(decimal, style));
    const std::string fraction = decimal.Fraction();
    text += decimal.point > 0 ? decimal.Whole() : "0";
    if (!fraction.empty())
        text.append(1, style.decimal).append(fraction);
    return text;
}

std::string WithSignPlace(std::string text) {
    return text[0] == '-' ? text : ' ' + text;
}

template<class Number> std::string DigitsThatReadBack(Number x, int digits) {
    if (!std::isfinite(x))
        return {};
    std::string text = GeneralDigits(x, digits, NumberStyle());
    while (static_cast<Number>(ParseNumber(text)) != x && digits < std::numeric_limits<Number>::max_digits10)
        text = GeneralDigits(x, ++digits, NumberStyle());
    return text;
}

} // namespace

std::string Format(double x, std::string_view mask, NumberStyle style) {
    const Mask masks = SplitMask(mask);
    const Form positive = ParseForm(masks.positive);
    const bool finite = std::isfinite(x);
    if (x < 0.0 && !masks.negative.empty()) {
        const Form negative = ParseForm(masks.negative);
        if (!finite)
            return WriteNotFinite(negative, NotFiniteName(-x));
        const Digits digits = DigitsFor(negative, x);
        if (!digits.isZero)
            return Write(negative, digits, false, style);
        x = 0.0;
    }
    if (!finite)
        return WriteNotFinite(positive, NotFiniteName(x));
    const Digits digits = DigitsFor(positive, x);
    return Write(positive, digits, digits.negative, style);
}

std::string General(float x, NumberStyle style) {
    return GeneralDigits(x, singleDigits, style);
}

std::string General(double x, NumberStyle style) {
    return GeneralDigits(x, doubleDigits, style);
}

std::string FieldText(float x) {
    return DigitsThatReadBack(x, singleDigits);
}

std::string FieldText(double x) {
    return DigitsThatReadBack(x, doubleDigits);
}

std::string Str(float x, NumberStyle style) {
    return WithSignPlace(General(x, style));
}

std::string Str(double x, NumberStyle style) {
    return WithSignPlace(General(x, style));
}

std::string Str(int x) {
    return WithSignPlace(std::to_string(x));
}

} // namespace orva
