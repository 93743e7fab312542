# Makes tables of the results of run: lines of GROUP NAME FIGURE VALUE. Each figure is the median of
# its values.

{
    values[$1, $2, $3] = values[$1, $2, $3] " " $4
    text[$1, $2, $3] = $4
    for (i = 5; i <= NF; ++i) {
        text[$1, $2, $3] = text[$1, $2, $3] " " $i
    }
}

function median(group, name, figure,    sorted, count, i, j, value) {
    count = split(values[group, name, figure], sorted, " ")
    if (count == 0) {
        print "no figures: " group " " name " " figure >"/dev/stderr"
        exit 1
    }
    for (i = 2; i <= count; ++i) {
        value = sorted[i]
        for (j = i - 1; j > 0 && sorted[j] + 0 > value + 0; --j) {
            sorted[j + 1] = sorted[j]
        }
        sorted[j + 1] = value
    }
    return (sorted[int((count + 1) / 2)] + sorted[int(count / 2) + 1]) / 2
}

function min(a, b) { return a < b ? a : b }
function max(a, b) { return a > b ? a : b }
# Three digits that count.
function short(number) {
    return sprintf(number >= 100 ? "%.0f" : number >= 10 ? "%.1f" : "%.2f", number)
}
function aim(what, worst, most) {
    printf "- %s: %.2f, aim at most %s: %s\n", what, worst, most, worst <= most ? "met" : "**missed**"
}

function start_cell(group, name) {
    return short(median(group, name, "window_ms")) " ms, " short(median(group, name, "own_mb")) " MB"
}

function start_row(label, name,    helpers) {
    helpers = text["start", name, "helpers"]
    printf "| %s | %s | %s | %s | \"%s\" |\n", label, start_cell("start", name),
        start_cell("first", name),
        helpers == "" ? "none" : helpers ", " short(median("start", name, "helpers_mb")) " MB",
        text["start", name, "window"]
}

function best_start(figure) {
    return min(median("start", "gsmartcontrol", figure),
               min(median("start", "gnome-firmware", figure),
                   median("start", "gnome-firmware-cairo", figure)))
}

function starts() {
    print "\n### Start and memory\n"
    print "| program | first window, memory | the same in the round before | helpers | the window |"
    print "| --- | --- | --- | --- | --- |"
    start_row("workstation", "workstation")
    start_row("a plain window of the toolkit", "plain-window")
    start_row("gsmartcontrol", "gsmartcontrol")
    start_row("gnome-firmware", "gnome-firmware")
    start_row("gnome-firmware, `GSK_RENDERER=cairo`", "gnome-firmware-cairo")
    print ""
    aim("first window, of the fastest other's time",
        median("start", "workstation", "window_ms") / best_start("window_ms"), 0.6)
    aim("memory, of the smallest other's",
        median("start", "workstation", "own_mb") / best_start("own_mb"), 0.7)
}

function installation(    i, programs, name) {
    print "\n### Installation\n"
    print "| program | packages | installed size |"
    print "| --- | --- | --- |"
    split("workstation gsmartcontrol gnome-firmware", programs, " ")
    for (i = 1; i <= 3; ++i) {
        name = programs[i]
        printf "| %s | %d | %s MB |\n", name, median("install", name, "packages"),
            short(median("install", name, "kb") / 1024)
    }
}

function refresh_row(call, files,    bare, headless, qt) {
    bare = median("refresh", call, "calls_ms")
    headless = median("refresh", call, "headless_ms")
    qt = median("refresh", call, "qt_ms")
    printf "| %d ms | %s | %s ms | %s ms, %.2f | %s ms, %.2f |\n", call, files, short(bare),
        short(headless), headless / bare, short(qt), qt / bare
}

function refreshes() {
    print "\n### Refresh over bare calls\n"
    print "| a call takes | files | calls alone | refresh without a toolkit, ratio | in a window, ratio |"
    print "| --- | --- | --- | --- | --- |"
    refresh_row(0, "100,000")
    refresh_row(1, "50")
    refresh_row(10, "50")
}

function cell(name) {
    return short(median("widget", name, "ms")) " ms, " short(median("widget", name, "mb")) " MB"
}

# A row for each size; `own` against one or two widgets of the toolkit.
function widgets(own, first, second,    i, sizes, labels, ms, mb, row) {
    split("1000 10000 100000 1000000", sizes, " ")
    split("1,000 10,000 100,000 1,000,000", labels, " ")
    for (i = 1; i <= 4; ++i) {
        ms = min(median("widget", first "-" sizes[i], "ms"),
                 median("widget", second "-" sizes[i], "ms"))
        mb = min(median("widget", first "-" sizes[i], "mb"),
                 median("widget", second "-" sizes[i], "mb"))
        ms = median("widget", own "-" sizes[i], "ms") / ms
        mb = median("widget", own "-" sizes[i], "mb") / mb
        row = "| " labels[i] " | " cell(own "-" sizes[i]) " | " cell(first "-" sizes[i]) " |"
        if (second != first) {
            row = row " " cell(second "-" sizes[i]) " |"
        }
        printf "%s %.2f | %.2f |\n", row, ms, mb
        worst_ms = i == 1 ? ms : max(worst_ms, ms)
        worst_mb = i == 1 ? mb : max(worst_mb, mb)
    }
    print ""
}

END {
    starts()
    installation()
    refreshes()
    print "\n### List\n"
    print "| rows | the panel's list | QTreeWidget | QTableWidget | time over the faster | memory over the smaller |"
    print "| --- | --- | --- | --- | --- | --- |"
    widgets("panel-list", "QTreeWidget", "QTableWidget")
    aim("time over the faster one's", worst_ms, 0.5)
    aim("memory over the smaller one's", worst_mb, 0.5)
    print "\n### Log\n"
    print "| lines | the panel's log | QPlainTextEdit | time over its | memory over its |"
    print "| --- | --- | --- | --- | --- |"
    widgets("panel-log", "QPlainTextEdit", "QPlainTextEdit")
    aim("time over its", worst_ms, 0.5)
    aim("memory over its", worst_mb, 1)
}
