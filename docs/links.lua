-- Links between the documents lead to their pages.
function Link(link)
    link.target = link.target:gsub("%.md$", ".html"):gsub("%.md#", ".html#")
    return link
end
