/// @file
/// The snippets of the pages of docs/, a function for each page. They are written by make_snippets.py.

#ifndef VELLOX_TESTS_DOCS_PAGES_H
#define VELLOX_TESTS_DOCS_PAGES_H

struct Page {
    const char* name;
    void (*run)();
};

extern const Page kPages[];
extern const unsigned int kPageCount;

#endif
