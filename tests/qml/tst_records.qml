// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import "qrc:/qml/pages/records.js" as Records

TestCase {
    name: "records"

    function list(count, record) {
        var records = []
        for (var i = 0; i < count; ++i)
            records.push(record(i))
        return records
    }

    function flat(i) { return { date: "21/03/05,14:30:00-12", value: String(i) } }
    function tricky(i) { return { date: "]},{\"date\":\\", value: "[{\"date\":" + i } }
    function mixed(i) { return { "a.b$(1": "x", value: ["1", "-2.5", "---", "007", "", "\"", "1e5"][i % 7], date: i, odd: null } }
    function nested(i) { return { date: i, parts: list(i % 3, flat) } }
    function uneven(i) { return i % 2 ? { date: i } : { value: i } }
    function empty(i) { return i === 200 ? null : { date: i, list: [[], [{}]] } }

    function pick(record) { return [record.date, record.value, record.value, ((record.parts || [])[1] || {}).value] }
    function texts(values) { return values.map(function (value) { return value === null ? "undefined" : String(value) }) }

    function test_records_data() {
        var rows = []
        var kinds = { flat: flat, tricky: tricky, mixed: mixed, nested: nested, uneven: uneven, empty: empty }
        Object.keys(kinds).forEach(function (kind) {
            [0, 1, 2, 128, 129, 1500].forEach(function (count) {
                rows.push({ tag: kind + ", " + count, object: { deviceName: "A", logList: list(count, kinds[kind]), results: {} } })
            })
        })
        return rows.concat(
            { tag: "another list behind", object: { logList: list(300, flat), more: list(300, flat), rest: [1].concat(list(9, flat)) } },
            { tag: "one inside another", object: { first: { logList: list(5, flat) }, logList: list(300, flat) } },
            { tag: "only inside another", object: { first: { logList: list(300, flat) } } },
            { tag: "in a text", object: { a: ",\"logList\":[{\"date\":1}]", logList: list(2, flat) } },
            { tag: "no list", object: { logList: { length: 0 } } }, { tag: "none", object: { a: 1 } })
    }
    function test_records(row) {
        [0, 4].forEach(function (indent) {
            var read = Records.read(JSON.stringify(row.object, null, indent))
            var records = read.logList
            if (records && records.at) {
                compare(records.length, row.object.logList.length)
                compare(JSON.stringify(records.at(records.length - 1)), JSON.stringify(row.object.logList[records.length - 1]))
                compare(records.at(records.length), undefined)
                var visited = []
                records.visit(pick, function (picked) { visited.push(texts(picked)) })
                compare(visited.join(), row.object.logList.map(function (record) { return texts(pick(record)) }).join())
                read.logList = records.map(function (record) { return record })
            }
            compare(JSON.stringify(read), JSON.stringify(row.object))
        })
    }

    function test_readsBlocks() {
        var text = JSON.stringify({ logList: list(1000, flat) })
        verify(Records.read(text).logList.at)
        compare(Records.read(text.slice(0, -1)), null)
        compare(Records.read(text.replace("\"value\":\"3\"", "\"value\":")), null)
    }
}
