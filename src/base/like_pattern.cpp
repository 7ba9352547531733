#include "base/like_pattern.h"

#include "base/collation.h"
#include "base/utf8.h"

namespace quelvarn {

LikePattern::LikePattern(std::string_view pattern, Wildcards wildcards)
{
    const std::u32string folded = toUtf32(foldCase(pattern));
    for (std::size_t position = 0; position < folded.size(); ++position) {
        const char32_t character = folded[position];
        if (character == U'%' || (character == U'*' && wildcards == Wildcards::Filter)) {
            if (tokens_.empty() || tokens_.back().kind != Token::Kind::AnyRun)
                tokens_.push_back({Token::Kind::AnyRun});
        } else if (character == U'_') {
            tokens_.push_back({Token::Kind::AnyOne});
        } else if (const std::size_t end = folded.find(U']', position); character == U'[' && end != folded.npos) {
            addClass(std::u32string_view(folded).substr(position + 1, end - position - 1));
            position = end;
        } else {
            tokens_.push_back({Token::Kind::Char, character});
        }
    }
    findRequired();
    findShape();
}

// The longest run of plain characters.
void LikePattern::findRequired()
{
    std::string run;
    for (const Token& token : tokens_) {
        if (token.kind == Token::Kind::Char)
            appendUtf8(run, token.character);
        else
            run.clear();
        if (run.size() > required_.size())
            required_ = run;
    }
}

void LikePattern::addClass(std::u32string_view members)
{
    Token token{Token::Kind::Class};
    token.negated = members.size() > 1 && (members.front() == U'!' || members.front() == U'^');
    members.remove_prefix(token.negated ? 1 : 0);
    if (members.empty())
        return;
    if (members.size() == 1 && !token.negated) {
        tokens_.push_back({Token::Kind::Char, members.front()});
        return;
    }
    for (std::size_t i = 0; i < members.size(); ++i) {
        const bool range = i + 2 < members.size() && members[i + 1] == U'-';
        token.members += {members[i], members[range ? i + 2 : i]};
        i += range ? 2 : 0;
    }
    tokens_.push_back(std::move(token));
}

void LikePattern::findShape()
{
    const auto isRun = [](const Token& token) { return token.kind == Token::Kind::AnyRun; };
    const bool runInFront = tokens_.size() > 1 && isRun(tokens_.front());
    const bool runBehind = !tokens_.empty() && isRun(tokens_.back());
    std::string literal;
    for (std::size_t i = runInFront ? 1 : 0; i < tokens_.size() - (runBehind ? 1 : 0); ++i) {
        if (tokens_[i].kind != Token::Kind::Char)
            return;
        appendUtf8(literal, tokens_[i].character);
    }
    if (runInFront && !runBehind)
        return;
    shape_ = runInFront ? Shape::Contains : runBehind ? Shape::Prefix : Shape::Exact;
    literal_ = std::move(literal);
}

bool LikePattern::matches(std::string_view text) const
{
    return matchesFolded(foldCase(text));
}

bool LikePattern::matchesFolded(std::string_view folded) const
{
    switch (shape_) {
    case Shape::Exact:
        return folded == literal_;
    case Shape::Prefix:
        return folded.starts_with(literal_);
    case Shape::Contains:
        return folded.find(literal_) != std::string_view::npos;
    case Shape::Other:
        break;
    }
    return matchesTokens(folded);
}

bool LikePattern::Token::accepts(char32_t candidate) const
{
    if (kind == Kind::Char)
        return candidate == character;
    if (kind == Kind::AnyOne)
        return true;
    bool found = false;
    for (std::size_t i = 0; i < members.size(); i += 2)
        found = found || (members[i] <= candidate && candidate <= members[i + 1]);
    return found != negated;
}

// The first place where what stands behind a run can begin.
std::size_t LikePattern::findStart(std::size_t token, std::string_view folded, std::size_t from) const
{
    if (token == tokens_.size() || !tokens_[token].isAscii())
        return from;
    return folded.find(static_cast<char>(tokens_[token].character), from);
}

// After a mismatch only the last run has to grow: what an earlier run took can stay as short as it is.
bool LikePattern::matchesTokens(std::string_view folded) const
{
    std::size_t token = 0;
    std::size_t position = 0;
    std::size_t behindRun = 0; // 0: no run seen yet
    std::size_t runEnd = 0;
    while (position < folded.size()) {
        const Token* current = token < tokens_.size() ? &tokens_[token] : nullptr;
        if (current && current->kind == Token::Kind::AnyRun) {
            behindRun = ++token;
            position = runEnd = findStart(behindRun, folded, position);
            continue;
        }
        if (current && current->isAscii() && folded[position] == static_cast<char>(current->character)) {
            ++token;
            ++position;
            continue;
        }
        std::size_t next = position;
        if (current && !current->isAscii() && current->accepts(nextCodePoint(folded, next))) {
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
    if (token < tokens_.size() && tokens_[token].kind == Token::Kind::AnyRun)
        ++token;
    return token == tokens_.size();
}

} // namespace quelvarn
