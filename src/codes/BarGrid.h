#pragma once

/// Where a label's bars may begin and end on paper.
///
/// A printer draws whole dots. Where it rounds each edge by itself, spaces of equal width come out unequal, and a
/// reader takes one character for another; so each bar and each space has a width of whole steps of a grid, laid end to
/// end. The grid is the printer's own dots where they are known and coarse, and 1/600 inch otherwise. With a module of
/// 18 twips, of bars and of spaces of one to four modules:
///
///   exact   twips       18.0 36.0 54.0 72.0     23.4 46.8 70.2 93.6
///   1/600   steps        7   15   22   30       10   19   29   39      none off by more than 1/1200 inch
///   300     dots         4    7   11   15        5   10   15   19
///   203     dots         2    5    8   10        3    7   10   13
///
/// The bars of Code 128, its spaces and the whole stay within 5 % of the exact widths. How many labels are read is told
/// in docs/labels.md. A grid of 1/1200 inch is nearer to the exact widths but falls between the dots of 300 to the
/// inch.
class BarGrid
{
public:
    /// 0 dots per inch where the resolution isn't known, as in a file.
    explicit BarGrid(int dotsPerInch);

    /// Where a label begins that belongs there, in twips. It moves only to a dot that is known.
    double left(double twips) const;
    /// Width of an element, in twips.
    double width(double twips) const;
    /// What a bar leaves blank at either side of its place, in twips: its edges lie on those of dots, and some printers
    /// blacken every dot that is touched.
    double trim() const;

private:
    double m_step;
    bool m_known;
};
