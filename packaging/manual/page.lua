-- Turns a page of docs/ into one of the HTML manual: formulas in fences become formulas, links lead to the HTML pages,
-- and the first heading is the title of the window.

local title

function CodeBlock(block)
  if block.classes:includes("math") then
    return pandoc.Para({ pandoc.Math("DisplayMath", block.text) })
  end
end

function Link(link)
  if not link.target:match("^%a+://") then
    link.target = link.target:gsub("^README%.md", "index.html"):gsub("%.md$", ".html"):gsub("%.md#", ".html#")
  end
  return link
end

function Header(header)
  if header.level == 1 and not title then
    title = pandoc.utils.stringify(header)
  end
end

function Meta(meta)
  meta.pagetitle = title
  return meta
end

return { { CodeBlock = CodeBlock, Link = Link, Header = Header }, { Meta = Meta } }
