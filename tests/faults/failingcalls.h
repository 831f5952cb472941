/* SPDX-FileCopyrightText: 2026 the ceiechart authors */
/* SPDX-License-Identifier: MIT */
#ifndef CEIECHART_TESTS_FAULTS_FAILINGCALLS_H
#define CEIECHART_TESTS_FAULTS_FAILINGCALLS_H

/*
 * Calls of the C library that fail on demand: open, read, write, fsync and rename of files in one folder, write also
 * to standard output, and allocations from the first open in that folder on.
 *
 * As a preloaded library it is set by the environment: FAULT_CALL is the name of the call, FAULT_NUMBER which one of
 * them fails, counted from 1, FAULT_FOLDER the folder, FAULT_LASTING whether all later ones fail, too; FAULT_FIRED
 * names a file that is made when one fails.
 */
#ifdef __cplusplus
extern "C" {
#endif

/*
 * The call "open", "read", "write", "fsync", "rename" or "memory" of this number fails, as do all later ones if it is
 * lasting; null: none does. "own memory" counts all allocations, of which the one of this number fails only where code
 * of the project asks for it.
 */
void failCall(const char *call, int number, const char *folder, int lasting);

/* Whether it has failed. */
int hasCallFailed(void);

/* How often that call has been called since. */
int numberOfCalls(void);

#ifdef __cplusplus
}
#endif

#endif
