#!/usr/bin/env node
// Writes world.map and airports.xml, as README.md here tells. Needs Node.js and nothing besides.
import { readFileSync, writeFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";

const here = dirname(fileURLToPath(import.meta.url));
const Tolerance = 800; // metres that a simplified line may be off
const SmallestIsland = 6; // square kilometres; smaller ones are left out
const SouthernEdge = -85.06; // where the usual tiled maps end: the plane has no room for a pole
const AirportToLand = 20; // kilometres that an airport may be off the simplified land

const MetresPerDegree = 111195;
const radians = (degrees) => (degrees * Math.PI) / 180;

// Metres on a plane that touches the globe at the latitude.
function plane(origin, p) {
    const shrink = Math.cos(radians(origin[1]));
    return [(p[0] - origin[0]) * MetresPerDegree * shrink, (p[1] - origin[1]) * MetresPerDegree];
}

function distanceToSegment(p, a, b) {
    const [bx, by] = plane(p, b);
    const [ax, ay] = plane(p, a);
    const [dx, dy] = [bx - ax, by - ay];
    const length = dx * dx + dy * dy;
    const t = length === 0 ? 0 : Math.min(1, Math.max(0, -(ax * dx + ay * dy) / length));
    return Math.hypot(ax + t * dx, ay + t * dy);
}

// The line without jumps over the 180th meridian: it goes on beyond it.
function unwound(line) {
    let shift = 0;
    return line.map(([x, y], i) => {
        const step = i === 0 ? 0 : x - line[i - 1][0];
        if (Math.abs(step) > 180) shift -= Math.sign(step) * 360;
        return [x + shift, y];
    });
}

// Arcs are simplified rather than rings, so that neighbours keep the border that they share.
function simplified(arc) {
    const line = unwound(arc);
    const keep = new Set([0, arc.length - 1]);
    const ranges = [[0, arc.length - 1]];
    while (ranges.length > 0) {
        const [first, last] = ranges.pop();
        let [farthest, distance] = [-1, Tolerance];
        for (let i = first + 1; i < last; ++i) {
            const d = distanceToSegment(line[i], line[first], line[last]);
            if (d > distance) [farthest, distance] = [i, d];
        }
        if (farthest < 0) continue;
        keep.add(farthest);
        ranges.push([first, farthest], [farthest, last]);
    }
    return arc.filter((_, i) => keep.has(i));
}

// TopoJSON: every point is the difference to the one before, in steps of a grid.
function decodeArcs(topology) {
    const { scale, translate } = topology.transform;
    return topology.arcs.map((arc) => {
        let [x, y] = [0, 0];
        return arc.map(([dx, dy]) => {
            x += dx;
            y += dy;
            return [x * scale[0] + translate[0], Math.max(SouthernEdge, y * scale[1] + translate[1])];
        });
    });
}

const polygonsOf = (geometry) => {
    if (geometry.type === "GeometryCollection") return geometry.geometries.flatMap(polygonsOf);
    return geometry.type === "Polygon" ? [geometry.arcs] : geometry.type === "MultiPolygon" ? geometry.arcs : [];
};

// Arc i stands for itself, ~i for the same turned round.
const arcOf = (index) => (index < 0 ? ~index : index);
const follow = (arcs, index) => (index < 0 ? [...arcs[~index]].reverse() : arcs[index]);
const keyOf = (p) => p.join();

function ringOf(arcs, indices) {
    const ring = [];
    for (const index of indices) ring.push(...follow(arcs, index).slice(ring.length === 0 ? 0 : 1));
    ring.pop(); // the last is the first again
    return ring;
}

function squareKilometres(ring) {
    let sum = 0;
    const line = unwound(ring);
    for (let i = 0; i < line.length; ++i) {
        const [ax, ay] = plane(line[0], line[i]);
        const [bx, by] = plane(line[0], line[(i + 1) % line.length]);
        sum += ax * by - bx * ay;
    }
    return Math.abs(sum) / 2e6;
}

// The way along borders from a point of the one ring to a point of the other that takes the fewest borders.
function seamBetween(arcs, borders, from, to) {
    const goals = new Set(to.map(keyOf));
    const seen = new Set(from.map(keyOf));
    const lines = borders.flatMap((arc) => [arcs[arc], [...arcs[arc]].reverse()]);
    let ways = lines.filter((line) => seen.has(keyOf(line[0])));
    while (ways.length > 0) {
        const found = ways.find((way) => goals.has(keyOf(way.at(-1))));
        if (found) return found;
        const fresh = ways.filter((way) => !seen.has(keyOf(way.at(-1))));
        fresh.forEach((way) => seen.add(keyOf(way.at(-1))));
        ways = fresh.flatMap((way) => lines.filter((line) => keyOf(line[0]) === keyOf(way.at(-1)))
            .map((line) => [...way, ...line.slice(1)]));
    }
    throw new Error("No border leads to a hole.");
}

// The ring turned so that it begins at the point, and ends with it again.
function turned(ring, point) {
    const start = ring.findIndex((p) => keyOf(p) === keyOf(point));
    return [...ring.slice(start), ...ring.slice(0, start + 1)];
}

// A polygon of the map has one ring: a hole is joined to the outside by a seam, there and back. The seam follows
// borders, so that its line is not seen.
function withHoles([outside, ...holes], arcs, borders) {
    return holes.reduce((ring, hole) => {
        const seam = seamBetween(arcs, borders, ring, hole);
        const back = seam.slice(1, -1).reverse();
        return [...turned(ring, seam[0]), ...seam.slice(1, -1), ...turned(hole, seam.at(-1)), ...back];
    }, outside);
}

// Antarctica's ring, which goes round the globe, is led along the southern edge. Others that cross the 180th meridian
// do so by the shorter way, and stay as they are.
function closedAroundPole(ring) {
    const line = unwound([...ring, ring[0]]);
    if (Math.abs(line[0][0] - line.at(-1)[0]) < 180) return ring;
    const start = ring.findIndex((p, i) => i > 0 && Math.abs(p[0] - ring[i - 1][0]) > 180);
    const fromEdge = [...ring.slice(start), ...ring.slice(0, start)];
    const [first, last] = [Math.sign(fromEdge[0][0]) * 180, Math.sign(fromEdge.at(-1)[0]) * 180];
    return [...fromEdge, [last, SouthernEdge], [first, SouthernEdge]];
}

// What stands in a binary map file: a version, then a stream of values with the high octet first.
class MapWriter {
    #parts = [Buffer.from("MAP2")];

    #add(size, write) {
        const buffer = Buffer.alloc(size);
        write(buffer);
        this.#parts.push(buffer);
    }
    count(value) {
        this.#add(4, (b) => b.writeUInt32BE(value));
    }
    text(value) {
        const octets = Buffer.from(value, "utf16le").swap16();
        this.count(octets.length);
        this.#parts.push(octets);
    }
    coordinate([longitude, latitude]) {
        this.#add(24, (b) => {
            b.writeDoubleBE(Number(latitude.toFixed(5)), 0);
            b.writeDoubleBE(Number(longitude.toFixed(5)), 8);
            b.writeDoubleBE(NaN, 16); // no altitude
        });
    }
    lines(lines) {
        this.count(lines.length);
        for (const line of lines) {
            this.text("");
            this.count(line.length);
            line.forEach((p) => this.coordinate(p));
        }
    }
    group({ name, className, polylines = [], polygons = [] }) {
        this.text(name);
        this.text(className);
        this.lines(polylines);
        this.lines(polygons);
        for (const list of ["labels", "symbols", "images"]) this.count(0, list);
    }
    save(file) {
        const octets = Buffer.concat(this.#parts);
        writeFileSync(file, octets);
        return octets.length;
    }
}

function writeWorld(file, groups) {
    const writer = new MapWriter();
    const [name, title, author, version] = ["world", "World", "Natural Earth", "5.1"];
    const description = "Land and borders of the world";
    const comment = "Made with Natural Earth (public domain), through the package world-atlas 2.0.2.";
    for (const text of [name, title, author, version, description, comment]) writer.text(text);
    writer.count(groups.length);
    groups.forEach((group) => writer.group(group));
    return writer.save(file);
}

function bordersOf(countries) {
    const users = new Map();
    countries.geometries.forEach((country, number) => {
        for (const arc of polygonsOf(country).flat(2).map(arcOf))
            users.set(arc, (users.get(arc) ?? new Set()).add(number));
    });
    return [...users].filter(([, by]) => by.size > 1).map(([arc]) => arc);
}

function worldGroups(topology) {
    const whole = decodeArcs(topology);
    const arcs = whole.map(simplified);
    const isSeen = (ring) => ringOf(arcs, ring).length > 2 && squareKilometres(ringOf(whole, ring)) >= SmallestIsland;
    const land = polygonsOf(topology.objects.land).map((rings) => rings.filter(isSeen)).filter(([ring]) => ring);
    const coast = new Set(land.flat(2).map(arcOf));
    const borders = bordersOf(topology.objects.countries).filter((arc) => !coast.has(arc));
    const ringsOf = (rings) => rings.map((ring) => ringOf(arcs, ring));
    const polygons = land.map((rings) => closedAroundPole(withHoles(ringsOf(rings), arcs, borders)));
    return [
        { name: "Land", className: "land", polygons },
        { name: "Borders", className: "border", polylines: borders.map((arc) => arcs[arc]) },
    ];
}

function contains(ring, [x, y]) {
    let inside = false;
    for (let i = 0, j = ring.length - 1; i < ring.length; j = i++) {
        const [[ax, ay], [bx, by]] = [ring[i], ring[j]];
        if (ay > y !== by > y && x < ((bx - ax) * (y - ay)) / (by - ay) + ax) inside = !inside;
    }
    return inside;
}

function kilometresOffLand(rings, p) {
    if (rings.some((ring) => contains(ring, p))) return 0;
    const distances = rings.map((ring) =>
        ring.reduce((least, q, i) => Math.min(least, distanceToSegment(p, q, ring[(i + 1) % ring.length])), Infinity));
    return Math.min(...distances) / 1000;
}

function readAirports(file) {
    const [, ...lines] = readFileSync(file, "utf8").trim().split("\n");
    return lines.map((line) => {
        const [icao, name, latitude, longitude] = line.split(",");
        return { icao, name, place: [Number(longitude), Number(latitude)] };
    });
}

// 500622N0141536E
function coordinateText([longitude, latitude]) {
    const text = (value, letters, digits) => {
        const seconds = Math.round(Math.abs(value) * 3600);
        const two = (n) => String(n).padStart(2, "0");
        const degrees = String(Math.floor(seconds / 3600)).padStart(digits, "0");
        return degrees + two(Math.floor(seconds / 60) % 60) + two(seconds % 60) + letters[value < 0 ? 1 : 0];
    };
    return text(latitude, "NS", 2) + text(longitude, "EW", 3);
}

function writeAirports(file, airports) {
    const escape = (text) => text.replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/"/g, "&quot;");
    const element = (indent, name, text) => `${" ".repeat(indent)}<${name}>${escape(text)}</${name}>\n`;
    const described = (airport, kind, key, value) =>
        `            <${kind} name="${escape(airport.name)}">\n` + element(16, key, value)
        + element(16, "coordinate", coordinateText(airport.place)) + `            </${kind}>\n`;
    const labels = airports.map((airport) => described(airport, "label", "caption", airport.icao));
    const symbols = airports.map((airport) => described(airport, "symbol", "type", "airport"));
    writeFileSync(file, `<?xml version="1.0" encoding="UTF-8"?>\n<map>\n    <meta>\n` + element(8, "name", "airports")
        + element(8, "title", "Airports") + element(8, "description", "Busy airports of the world")
        + element(8, "author", "") + element(8, "version", "1")
        + element(8, "comment", "For orientation; not for navigation.")
        + `    </meta>\n    <data>\n        <group name="Airports" class="airport">\n` + labels.join("")
        + symbols.join("") + `        </group>\n    </data>\n</map>\n`);
}

function main([atlas]) {
    if (!atlas) throw new Error("Usage: make_world_map.mjs FOLDER-OF-WORLD-ATLAS");
    const groups = worldGroups(JSON.parse(readFileSync(join(atlas, "countries-50m.json"), "utf8")));
    const octets = writeWorld(join(here, "world.map"), groups);
    for (const { name, polygons, polylines } of groups) {
        const lines = polygons ?? polylines;
        console.log(`${name}: ${lines.length} with ${lines.reduce((sum, line) => sum + line.length, 0)} points`);
    }
    console.log(`world.map: ${octets} octets`);

    const airports = readAirports(join(here, "airports.csv"));
    const lost = airports.filter(({ place }) => kilometresOffLand(groups[0].polygons, place) > AirportToLand);
    if (lost.length > 0) throw new Error(`In the sea: ${lost.map(({ icao }) => icao).join(", ")}`);
    writeAirports(join(here, "airports.xml"), airports);
    console.log(`airports.xml: ${airports.length} airports, each on land or within ${AirportToLand} km of it`);
}

main(process.argv.slice(2));
