"""Looks at a report in a real browser, as somebody does who is sent one."""
# The bars of the graphs: what each says of its height, and how high it is.
BARS = """[...document.querySelectorAll('td.tdG1 td')].map(
    bar => [Number(bar.getAttribute('height')), bar.getBoundingClientRect().height])"""
# Cells of one row that lie on each other, and tables that do; rows and tables as the page has them.
OVERLAPS = """(() => {
    const found = [];
    const look = (parts, side, end) => {
        const places = parts.map(part => part.getBoundingClientRect());
        for (let i = 1; i < places.length; ++i) {
            if (places[i][side] < places[i - 1][end] - 0.5) found.push(parts[i].outerHTML);
        }
    };
    look([...document.querySelectorAll('center > table')], 'top', 'bottom');
    for (const table of document.querySelectorAll('table')) {
        look([...table.rows], 'top', 'bottom');
        for (const row of table.rows) look([...row.cells], 'left', 'right');
    }
    return found;
})()"""
# Cells whose words need more room than the cell has.
CUT = """[...document.querySelectorAll('td')].filter(
    cell => cell.scrollWidth > cell.clientWidth + 1).map(cell => cell.outerHTML)"""
LINKS = """[...document.querySelectorAll('a[href^="#"]')].map(link => link.getAttribute('href'))"""
# What the browser finds for a fragment, after a link to it is followed.
TARGET = """(() => {
    location.hash = %r;
    const target = document.querySelector(':target');
    return target === null ? null : target.getAttribute('name');
})()"""


def look_at_graphs(browser, path, days):
    """Every bar is as high as it says, and nothing lies on anything else."""
    browser.open(path)
    bars = browser.evaluate(BARS)
    assert len(bars) == 6 * days, f"{len(bars)} bars"
    wrong = [bar for bar in bars if bar[0] != bar[1]]
    assert not wrong, f"bars of another height than they say: {wrong[:5]}"
    assert len({told for told, _ in bars}) > 5, "the bars are all alike"
    assert browser.evaluate("document.documentElement.scrollWidth") <= 1024, "wider than 1024"
    overlaps, cut = browser.evaluate(OVERLAPS), browser.evaluate(CUT)
    assert not overlaps, f"these lie on what is before them: {overlaps[:3]}"
    assert not cut, f"these are cut: {cut[:3]}"


def follow_links(browser, path, days):
    """Each day has a link to its section and one back. The names of the anchors begin with the "#"
    that a link only has in front of a name, so that this browser finds none of them; with the mark
    once more in the address it finds each."""
    browser.open(path)
    links = browser.evaluate(LINKS)
    assert len(links) == 2 * days and len(set(links)) == days + 1, f"{len(links)} links"
    for link in sorted(set(links)):
        assert browser.evaluate(TARGET % link) is None, f"{link} leads somewhere now"
        assert browser.evaluate(TARGET % ("#" + link)) == link, f"there is no anchor {link}"
