#pragma once

/// Plain platform helpers. Each returns 0 or a null pointer on failure.

/// Wall-clock time in seconds, microsecond resolution.
double apiGetTime();

/// Opens a directory for apiReadDir; null when it can't be opened.
void* apiOpenDir(const char* path);

/// Writes the next entry's name (NUL-terminated, at most 255 bytes) into \p name, a buffer of
/// 256 bytes, and returns 1; 0 at the end. "." and ".." are reported like any other entry.
int apiReadDir(void* handle, char* name);

/// Closes a handle of apiOpenDir; 0 only for a null handle.
int apiCloseDir(void* handle);

/// Loads a shared library with its symbols resolved at once and visible to later libraries.
void* apiDllOpen(const char* file);

/// Unloads a library; always 0.
int apiDllClose(void* handle);

/// Address of a symbol, null when the library does not have it.
void* apiDllGetSymbol(void* handle, const char* symbol);
