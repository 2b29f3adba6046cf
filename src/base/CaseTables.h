#pragma once

namespace corvelle {

/// A run of letters with their other case.
struct CaseRun {
  char32_t First;     // first small letter of the run
  char32_t Last;      // last small letter of the run
  char32_t Distance;  // small letter less capital
  char32_t Step;      // 1, or 2 when capitals and small letters alternate
};

/// Small letters beyond ASCII whose capital lies below them at a fixed distance.
inline constexpr CaseRun kCaseRuns[] = {
    {0x00E0, 0x00F6, 32, 1},  // Latin-1, before the division sign
    {0x00F8, 0x00FE, 32, 1},  // Latin-1, after it
    {0x0101, 0x012F, 1, 2},   // Latin Extended-A, up to the dotted and dotless i
    {0x0133, 0x0137, 1, 2},   //
    {0x013A, 0x0148, 1, 2},   // small letters on even places
    {0x014B, 0x0177, 1, 2},   //
    {0x017A, 0x017E, 1, 2},   // small letters on even places
    {0x01CE, 0x01DC, 1, 2},   // Latin Extended-B: letters with caron
    {0x01DF, 0x01EF, 1, 2},   //
    {0x01F9, 0x021F, 1, 2},   // with the comma below of Romanian
    {0x0223, 0x0233, 1, 2},   //
    {0x03AD, 0x03AF, 37, 1},  // Greek with tonos
    {0x03B1, 0x03C1, 32, 1},  // Greek, before the final sigma
    {0x03C3, 0x03CB, 32, 1},  // Greek, after it
    {0x0430, 0x044F, 32, 1},  // Cyrillic
    {0x0450, 0x045F, 80, 1},  //
    {0x0461, 0x0481, 1, 2},   // historic Cyrillic
    {0x048B, 0x04BF, 1, 2},   // Cyrillic of other languages
    {0x04C2, 0x04CE, 1, 2},   // small letters on even places
    {0x04D1, 0x052F, 1, 2},   //
    {0x0561, 0x0586, 48, 1},  // Armenian
    {0x1E01, 0x1E95, 1, 2},   // Latin Extended Additional
    {0x1EA1, 0x1EFF, 1, 2},   // with the letters of Vietnamese
};

/// A small letter and its capital where no run holds them.
struct CasePair {
  char32_t Small;
  char32_t Capital;
};

inline constexpr CasePair kCasePairs[] = {
    {0x00FF, 0x0178},                    // y with diaeresis
    {0x03AC, 0x0386}, {0x03CC, 0x038C},  // Greek with tonos
    {0x03CD, 0x038E}, {0x03CE, 0x038F},  //
    {0x04CF, 0x04C0},                    // palochka
};

/// The final sigma has the capital of sigma, which does not lead back to it.
inline constexpr CasePair kFinalSigma = {0x03C2, 0x03A3};

}  // namespace corvelle
