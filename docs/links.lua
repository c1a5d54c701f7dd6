-- Links between the documents lead to their pages, those between chapters of the guide to their places in it.
local chapters = { ["user-guide.md"] = true, ["itunes-and-music.md"] = true, ["ten-tasks.md"] = true, ["questions.md"] = true }

function Link(link)
    local chapter, place = link.target:match("^([^#]+)(#?.*)$")
    if chapters[chapter] and place ~= "" then
        link.target = place
        return link
    end
    link.target = link.target:gsub("%.md$", ".html"):gsub("%.md#", ".html#")
    return link
end
