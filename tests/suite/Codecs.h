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

    /// The name of its golden, which is the text of a record with a distinct value in every field.
    std::string golden() const;
};

/// Every form of every codec of this library. A codec that is missing here fails the suite.
const std::vector<CodecCase>& allCodecs();
