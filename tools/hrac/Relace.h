#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "base/Bod.h"
#include "hrac/Los.h"
#include "platform/Form.h"
#include "platform/Obrazovky.h"
#include "platform/headless/HeadlessHost.h"

namespace rysovna::hrac {

/// What the player was to do and could not: the control is hidden, the line is not offered.
struct NejdeUdelat : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// One run of the program on the headless host, with a data root of its own that goes with it:
/// plays as a pupil does, by names of controls, through the same events. Session variables and
/// tables are reset when it begins. What a person could not do (press what is hidden, on a screen
/// that is not in front) throws NejdeUdelat.
class Relace {
public:
    /// What the player plays with: by keys, whatever it presses or drags is reached by the ring,
    /// and what has no place in that round cannot be done; by a finger, nothing is met exactly, and
    /// a drag is ended by the pad.
    enum class Cim { Mysi, Klavesami, Prstem };

    /// The data root is a copy of the staged one, with no results in it. seminko: of the generator
    /// of examples.
    explicit Relace(std::uint32_t seminko = 1, Cim cim = Cim::Mysi);
    ~Relace();
    Relace(const Relace&) = delete;
    Relace& operator=(const Relace&) = delete;

    [[nodiscard]] HeadlessHost& Host() { return host_; }

    [[nodiscard]] Cim Hraje() const { return cim_; }
    void HrajOdTed(Cim cim) { cim_ = cim; }
    [[nodiscard]] Cim CimHraje() const { return cim_; }
