#include "base/like_pattern.h"

#include "base/collation.h"
#include "base/utf8.h"

#include <algorithm>

namespace quelvarn {
namespace {

using Kind = LikeToken::Kind;

constexpr std::size_t SHORT_PART = 64;

void addClass(std::vector<LikeToken>& tokens, std::u32string_view members)
{
    LikeToken token{Kind::Class};
    token.negated = members.size() > 1 && (members.front() == U'!' || members.front() == U'^');
    members.remove_prefix(token.negated ? 1 : 0);
    if (members.empty())
        return;
    if (members.size() == 1 && !token.negated) {
        tokens.push_back({Kind::Char, members.front()});
        return;
    }
    for (std::size_t i = 0; i < members.size(); ++i) {
        const bool range = i + 2 < members.size() && members[i + 1] == U'-';
        token.members += {members[i], members[range ? i + 2 : i]};
        i += range ? 2 : 0;
    }
    tokens.push_back(std::move(token));
}

bool isAscii(const LikeToken& token)
{
    return token.kind == Kind::Char && token.character < 0x80;
}

bool accepts(const LikeToken& token, char32_t candidate)
{
    if (token.kind == Kind::Char)
        return candidate == token.character;
    if (token.kind == Kind::AnyOne)
        return true;
    bool found = false;
    for (std::size_t i = 0; i < token.members.size(); i += 2)
        found = found || (token.members[i] <= candidate && candidate <= token.members[i + 1]);
    return found != token.negated;
}

// For each byte of a text: how many bytes before it, it included, are those that the text begins with.
std::vector<std::size_t> borders(std::string_view text)
{
    std::vector<std::size_t> lengths(text.size());
    for (std::size_t i = 1, length = 0; i < text.size(); ++i) {
        while (length > 0 && text[i] != text[length])
            length = lengths[length - 1];
        length += text[i] == text[length] ? 1 : 0;
        lengths[i] = length;
    }
    return lengths;
}

// Looks at no byte of the text twice, whatever repeats itself in what is wanted.
std::size_t findLong(std::string_view text, std::string_view wanted)
{
    const std::vector<std::size_t> lengths = borders(wanted);
    for (std::size_t i = 0, length = 0; i < text.size(); ++i) {
        while (length > 0 && text[i] != wanted[length])
            length = lengths[length - 1];
        length += text[i] == wanted[length] ? 1 : 0;
        if (length == wanted.size())
            return i + 1 - length;
    }
    return std::string_view::npos;
}

std::size_t findPart(std::string_view text, std::string_view wanted)
{
    return wanted.size() <= SHORT_PART || text.size() < wanted.size() ? text.find(wanted) : findLong(text, wanted);
}

} // namespace

std::vector<LikeToken> likeTokens(std::u32string_view pattern, Wildcards wildcards)
{
    const char32_t run = wildcards == Wildcards::Star ? U'*' : U'%';
    const bool sql = wildcards == Wildcards::Sql;
    const std::size_t lastClosing = sql ? pattern.rfind(U']') : pattern.npos;
    std::vector<LikeToken> tokens;
    for (std::size_t position = 0; position < pattern.size(); ++position) {
        const char32_t character = pattern[position];
        if (character == run) {
            if (tokens.empty() || tokens.back().kind != Kind::AnyRun)
                tokens.push_back({Kind::AnyRun});
        } else if (sql && character == U'_') {
            tokens.push_back({Kind::AnyOne});
        } else if (character == U'[' && lastClosing != pattern.npos && position < lastClosing) {
            const std::size_t end = pattern.find(U']', position);
            addClass(tokens, pattern.substr(position + 1, end - position - 1));
            position = end;
        } else {
            tokens.push_back({Kind::Char, character});
        }
    }
    return tokens;
}

std::string asSqlPattern(std::string_view pattern, Wildcards wildcards)
{
    if (wildcards == Wildcards::Sql)
        return std::string(pattern);
    const char run = wildcards == Wildcards::Star ? '*' : '%';
    std::string text;
    for (const char character : pattern) {
        if (character == run)
            text += '%';
        else if (character == '%' || character == '_' || character == '[')
            (text += '[').append(1, character) += ']';
        else
            text += character;
    }
    return text;
}

LikePattern::LikePattern(std::string_view pattern, Wildcards wildcards)
{
    tokens_ = likeTokens(toUtf32(foldCase(pattern)), wildcards);
    std::string part;
    bool plain = true;
    for (const LikeToken& token : tokens_) {
        if (token.kind == Kind::Char) {
            appendUtf8(part, token.character);
            continue;
        }
        plain = plain && token.kind == Kind::AnyRun;
        takePart(part);
    }
    takePart(part);
    if (plain) {
        tokens_ = {};
        findShape();
    }
}

void LikePattern::takePart(std::string& part)
{
    shortest_ += part.size();
    if (part.size() > required_.size())
        required_ = part;
    parts_.push_back(std::move(part));
    part.clear();
}

void LikePattern::findShape()
{
    if (parts_.size() == 1)
        shape_ = Shape::Exact;
    else if (parts_.size() == 2 && parts_.back().empty())
        shape_ = Shape::Prefix;
    else if (parts_.size() == 3 && parts_.front().empty() && parts_.back().empty())
        shape_ = Shape::Contains;
}

bool LikePattern::matches(std::string_view text) const
{
    return matchesFolded(foldCase(text));
}

bool LikePattern::matchesFolded(std::string_view folded) const
{
    switch (shape_) {
    case Shape::Exact:
        return folded == literal();
    case Shape::Prefix:
        return folded.starts_with(literal());
    case Shape::Contains:
        return findPart(folded, literal()) != std::string_view::npos;
    case Shape::Other:
        break;
    }
    return tokens_.empty() ? matchesParts(folded) : matchesTokens(folded);
}

// Each part at the first place behind the one before: what a run takes can stay as short as it is.
bool LikePattern::matchesParts(std::string_view folded) const
{
    const std::string& first = parts_.front();
    const std::string& last = parts_.back();
    if (folded.size() < shortest_ || !folded.starts_with(first) || !folded.ends_with(last))
        return false;
    folded = folded.substr(first.size(), folded.size() - first.size() - last.size());
    return std::all_of(parts_.begin() + 1, parts_.end() - 1, [&](const std::string& part) {
        const std::size_t place = findPart(folded, part);
        if (place == std::string_view::npos)
            return false;
        folded.remove_prefix(place + part.size());
        return true;
    });
}

// The first place where what stands behind a run can begin.
std::size_t LikePattern::findStart(std::size_t token, std::string_view folded, std::size_t from) const
{
    if (token == tokens_.size() || !isAscii(tokens_[token]))
        return from;
    return folded.find(static_cast<char>(tokens_[token].character), from);
}

// After a mismatch only the last run has to grow.
bool LikePattern::matchesTokens(std::string_view folded) const
{
    std::size_t token = 0;
    std::size_t position = 0;
    std::size_t behindRun = 0; // 0: no run seen yet
    std::size_t runEnd = 0;
    while (position < folded.size()) {
        const LikeToken* current = token < tokens_.size() ? &tokens_[token] : nullptr;
        if (current && current->kind == Kind::AnyRun) {
            behindRun = ++token;
            position = runEnd = findStart(behindRun, folded, position);
            continue;
        }
        if (current && isAscii(*current) && folded[position] == static_cast<char>(current->character)) {
            ++token;
            ++position;
            continue;
        }
        std::size_t next = position;
        if (current && !isAscii(*current) && accepts(*current, nextCodePoint(folded, next))) {
            ++token;
            position = next;
            continue;
        }
        if (behindRun == 0)
            return false;
        if (behindRun == tokens_.size())
            return true;
        nextCodePoint(folded, runEnd);
        position = runEnd = findStart(behindRun, folded, runEnd);
        token = behindRun;
    }
    if (position == std::string_view::npos)
        return false;
    if (token < tokens_.size() && tokens_[token].kind == Kind::AnyRun)
        ++token;
    return token == tokens_.size();
}

} // namespace quelvarn
