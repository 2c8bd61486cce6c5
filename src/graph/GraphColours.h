#pragma once

// Colours of the selection graph, as indexes of the toolkit's palette. Who summarises a graph reads them back.
namespace trellis::GraphColours {

constexpr int Plain = 1;
constexpr int Irresolution = 2; // of a node, and of the arc above an option
constexpr int PlainArc = 3;
constexpr int Conflict = 4; // of a node, and of the arc above an option
constexpr int PlainOption = 6;
constexpr int RuleSelected = 7; // of an option
constexpr int Missing = 7;      // of a mandatory category without a choice
constexpr int UserRejected = 12;
constexpr int Decided = 46; // of a category in which a decision is in force
constexpr int Ignored = 66;
constexpr int Highlighted = 112;
constexpr int RuleRejected = 254;

} // namespace trellis::GraphColours
