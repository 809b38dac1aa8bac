#pragma once

#include <string>
#include <vector>

/// One form of one codec: what the loops over all of them need.
struct CodecCase
{
    const char* family; ///< the folder
    const char* codec;  ///< the class
    const char* form;   ///< "document", "node", "list" or "element"

    /// Reads @p text into a new record and writes that again; false if the reader or the writer fails.
    bool (*rewrite)(const std::string& text, std::string& rewritten);

    /// For a form that does not read all that it writes: the name, in place of the form, of a second golden, which is
    /// what its golden gives when it is read and written again; "" for one that refuses its own text.
    const char* rewritten = nullptr;

    /// The name of its golden, which is the text of a record with a distinct value in every field.
    std::string golden() const;
    /// The name of what that golden gives when it is read and written again: the same one, for nearly all.
    std::string rewrittenGolden() const;
};

/// Every form of every codec of this library, family by family: the list of one stands in its `<Family>Codecs.cpp`. A
/// codec that is missing there fails the suite.
const std::vector<CodecCase>& allCodecs();
