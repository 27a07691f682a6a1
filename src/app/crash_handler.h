#pragma once

#include <QString>

// From now on a fatal signal (segmentation or bus error, illegal instruction, arithmetic error, abort) first appends a
// report to the file: time, version, revision, fault, call stack, registers, return addresses found on the stack,
// modules. The process then dies of that same signal, core dump included. A file that cannot be opened is passed over
// silently.
//
// Call it first of all in main, right after setApplicationIdentity(): it needs the application's version and name but
// no application object. It makes the file's directory, and prepares the calling thread. A second call only changes the
// file.
void installCrashHandler(const QString &logFile);

// Gives the calling thread the stack on which the report is written when its own is exhausted. To be called once in
// every thread that the application starts; the stack is given back when the thread ends.
void prepareThreadForCrashHandler();
