#pragma once

/// How long the program waits for others who hold what it needs, such as the data file.
///
/// It has 15 seconds in all for whatever one press of the attendant sets off, or the program's start, however many
/// statements that is: when they are used up, each further statement tries once. Where nobody presses anything, as in a
/// tool, each statement has 15 seconds of its own.
class Patience
{
public:
    /// The attendant pressed something, or the program starts.
    static void renew();

    /// What an engine does when it finds its file held: sleeps for a moment, with a sign of life, and answers whether
    /// to try once more. `attempt` counts from 0 in each statement.
    static bool waitForOthers(int attempt);
};
