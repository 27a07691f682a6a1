// node make_demo_maps.mjs: writes the maps of the demonstration, around the fixes and the aerodrome of its scenarios.
import {readFileSync, writeFileSync} from 'node:fs';

const scenario = name => JSON.parse(readFileSync(new URL(`../demo/${name}.json`, import.meta.url)));
const fixes = Object.fromEntries(scenario('demo').fixes.map(fix => [fix.name, [fix.lat, fix.lon]]));
const ground = Object.fromEntries(scenario('smr').fixes.map(fix => [fix.name, [fix.lat, fix.lon]]));
const [net] = scenario('alerts').safetyNets;

// Places are [latitude, longitude]; moves over the ground are short enough for a plane.
const MetresPerDegree = 111120;
const MetresPerMile = 1852;
const radians = degrees => degrees * Math.PI / 180;
const moved = ([lat, lon], bearing, metres) => [
    lat + metres * Math.cos(radians(bearing)) / MetresPerDegree,
    lon + metres * Math.sin(radians(bearing)) / MetresPerDegree / Math.cos(radians(lat))];
const bearing = ([lat, lon], [toLat, toLon]) =>
    Math.atan2((toLon - lon) * Math.cos(radians((lat + toLat) / 2)), toLat - lat) * 180 / Math.PI;
const between = (one, other, part = 0.5) => one.map((value, i) => value + (other[i] - value) * part);
const circle = (place, miles, points) =>
    Array.from({length: points}, (_, i) => moved(place, i * 360 / points, miles * MetresPerMile));
const box = (south, north, west, east) => [[north, west], [north, east], [south, east], [south, west]];
const strip = (from, to, width, beyond = 0) => {
    const along = bearing(from, to);
    const [start, end] = [moved(from, along, -beyond), moved(to, along, beyond)];
    return [moved(start, along - 90, width / 2), moved(end, along - 90, width / 2),
        moved(end, along + 90, width / 2), moved(start, along + 90, width / 2)];
};

function dms(degrees, width, [positive, negative]) {
    const hundredths = Math.round(Math.abs(degrees) * 360000);
    const field = (value, digits) => String(value).padStart(digits, '0');
    return field(Math.floor(hundredths / 360000), width) + field(Math.floor(hundredths / 6000) % 60, 2)
        + field((hundredths % 6000 / 100).toFixed(2), 5) + (degrees < 0 ? negative : positive);
}

const coordinate = ([lat, lon], indent) =>
    `${indent}<coordinate>${dms(lat, 2, 'NS')}${dms(lon, 3, 'EW')}</coordinate>\n`;
const element = (kind, name, inside) =>
    `            <${kind} name="${name}">\n${inside}            </${kind}>\n`;
const inside = '                ';
const line = (name, points) => element('polyline', name, points.map(point => coordinate(point, inside)).join(''));
const area = (name, points) => element('polygon', name, points.map(point => coordinate(point, inside)).join(''));
const label = (name, caption, place) =>
    element('label', name, `${inside}<caption>${caption}</caption>\n${coordinate(place, inside)}`);
const symbol = (name, type, place) =>
    element('symbol', name, `${inside}<type>${type}</type>\n${coordinate(place, inside)}`);
// Within a kind of element, in this order: the reader of maps expects lines, areas, labels and symbols one after the other.
const group = (name, styleClass, ...elements) => {
    const order = ['<polyline', '<polygon', '<label', '<symbol'];
    const rank = text => order.findIndex(kind => text.trimStart().startsWith(kind));
    const sorted = elements.flat().map((text, i) => [rank(text), i, text]).sort((a, b) => a[0] - b[0] || a[1] - b[1]);
    return `        <group name="${name}" class="${styleClass}">\n${sorted.map(([, , text]) => text).join('')}        </group>\n`;
};

function write(name, title, groups) {
    writeFileSync(new URL(`${name}.xml`, import.meta.url), `<?xml version="1.0" encoding="UTF-8"?>
<map>
    <meta>
        <name>${name}</name>
        <title>${title}</title>
        <description>Of the demonstration: nothing of it exists</description>
        <author></author>
        <version>1</version>
        <comment>Written by make_demo_maps.mjs.</comment>
    </meta>
    <data>
${groups.join('')}    </data>
</map>
`);
}

const fix = name => [symbol(name, 'waypoint', fixes[name]), label(name, name, fixes[name])];
const terminalFixes = ['HOLTE', 'MARSH', 'LINDE', 'OSTER'];
const airportFixes = ['PORTA', 'RIVEN'];
const enrouteFixes = Object.keys(fixes).filter(name => ![...terminalFixes, ...airportFixes].includes(name));

// Aerodromes. The runway of PORTA lies where the demonstration's arrivals come in over OSTER, those of its eastern field
// where the surface movement radar's traffic is.
const portaEnd = moved(fixes.PORTA, bearing(fixes.OSTER, fixes.PORTA), 3000);
const rivenEnd = moved(fixes.RIVEN, bearing(fixes.RIVEN, fixes.BODUS), 2400);
const runways = [['05', fixes.PORTA, '23', portaEnd, 45], ['36L', ground.RW36LT, '18R', ground.RW36LE, 60],
    ['36R', ground.RW36RT, '18L', ground.RW36RE, 60], ['29', fixes.RIVEN, '11', rivenEnd, 45]];

function airspace() {
    const rim = names => names.map(name => fixes[name]);
    const tma = circle([40.05, 116.7], 36, 12);
    const cta = rim(['KORAL', 'NEBUR', 'ELVIN', 'DOMEX', 'PIRAT', 'GUSTO', 'WEMOL', 'TIBER'])
        .map(place => moved(place, bearing([40.05, 116.733], place), 10 * MetresPerMile));
    const fir = rim(['KELVA', 'ORNIT', 'TADUR', 'MIVEL', 'SOBAK', 'RUDEN', 'LIPOX', 'VANTU']);
    const routes = {L21: 'KELVA KORAL ABEKA BODUS PIRAT SOBAK', N44: 'ORNIT NEBUR DERUN GUSTO RUDEN',
        T7: 'TADUR ELVIN CILOR WEMOL LIPOX', V18: 'VANTU TIBER DERUN CILOR PIRAT SOBAK',
        M3: 'MIVEL DOMEX BODUS ABEKA NEBUR ORNIT', Z9: 'LIPOX WEMOL DERUN KORAL KELVA',
        R65: 'RUDEN GUSTO PIRAT DOMEX MIVEL', V2: 'VANTU TIBER KORAL NEBUR ORNIT',
        T12: 'TADUR ELVIN DOMEX PIRAT GUSTO RUDEN'};
    const routeElements = Object.entries(routes).flatMap(([name, way]) => {
        const points = way.split(' ').map(point => fixes[point]);
        return [line(name, points), label(name, name, between(points[1], points[2]))];
    });
    const polygon = outline => outline.map(({lat, lon}) => [lat, lon]);
    const [danger, restricted] = net.restrictedAreas;
    const [ridge] = net.minimumAltitudes;
    const middle = points => [0, 1].map(i => points.reduce((sum, point) => sum + point[i], 0) / points.length);
    const named = (name, caption, points) => [area(name, points), label(name, caption, middle(points))];
    write('demo-airspace', 'Airspace of the demonstration', [
        group('Flight information region', 'fir', area('VELMAR', fir),
            label('VELMAR', 'VELMAR FIR', between(fixes.ORNIT, fixes.TADUR, 0.45))),
        group('Control area', 'airspace', area('PORTA CTA', cta),
            label('PORTA CTA', 'CTA F245 / F095', between(cta[2], cta[3], 0.4))),
        group('Terminal control area', 'tma', area('PORTA TMA', tma),
            label('PORTA TMA', 'TMA F195 / 3000', between(tma[6], tma[7], 0.5))),
        group('Control zones', 'ctr', area('PORTA CTR', circle(between(fixes.PORTA, ground.M1), 8, 36)),
            label('PORTA CTR', 'CTR 3000 / GND', moved(between(fixes.PORTA, ground.M1), 330, 6.5 * MetresPerMile)),
            area('RIVEN CTR', circle(fixes.RIVEN, 5, 36)),
            label('RIVEN CTR', 'CTR 2500 / GND', moved(fixes.RIVEN, 180, 4 * MetresPerMile))),
        group('Danger areas', 'danger', named(danger.name, `${danger.name} 12000 / GND`, polygon(danger.polygon))),
        group('Restricted areas', 'restricted',
            named(restricted.name, `${restricted.name} 5000 / GND`, polygon(restricted.polygon))),
        group('Minimum altitudes', 'obstacle',
            line(ridge.name, [...polygon(ridge.polygon), polygon(ridge.polygon)[0]]),
            label(ridge.name, `${ridge.name} 6300`, middle(polygon(ridge.polygon)))),
        group('Routes', 'route', routeElements),
        group('Fixes', 'fix', enrouteFixes.flatMap(fix)),
        group('Aerodromes', 'airport', symbol('PORTA', 'airport', fixes.PORTA), label('PORTA', 'PORTA', fixes.PORTA),
            symbol('RIVEN', 'airport', fixes.RIVEN), label('RIVEN', 'RIVEN', fixes.RIVEN)),
    ]);
}

// A line against the landing direction with a tick each mile, longer ones each fifth.
function centreLine(name, threshold, landing, miles) {
    const outward = landing + 180;
    const ticks = Array.from({length: miles}, (_, i) => {
        const place = moved(threshold, outward, (i + 1) * MetresPerMile);
        const half = (i + 1) % 5 === 0 ? 700 : 350;
        return line(`${name} ${i + 1} NM`, [moved(place, outward - 90, half), moved(place, outward + 90, half)]);
    });
    return [line(name, [threshold, moved(threshold, outward, miles * MetresPerMile)]), ...ticks];
}

function approach() {
    write('demo-approach', 'Approaches of the demonstration', [
        group('Runways', 'runway', runways.map(([one, from, other, to]) => line(`${one}/${other}`, [from, to]))),
        group('Approaches', 'approach', centreLine('05', fixes.PORTA, bearing(fixes.OSTER, fixes.PORTA), 12),
            centreLine('36L', ground.RW36LT, 0, 10), centreLine('36R', ground.RW36RT, 0, 10),
            centreLine('29', fixes.RIVEN, bearing(fixes.RIVEN, fixes.BODUS), 8)),
        group('Fixes', 'fix', terminalFixes.flatMap(fix)),
    ]);
}

function aerodrome() {
    const g = ground;
    const taxiways = [['A', g.A1, g.A5], ['B', g.B1, g.B5], ['A1', g.RW36LT, g.A1], ['A4', g.WESTX, g.A4],
        ['A5', g.RW36LE, g.A5], ['B1', g.B1, g.RW36RT], ['B4', g.B4, g.EASTX], ['B5', g.B5, g.RW36RE],
        ['N', g.A4, g.B4], ['M', g.A3, g.M1], ['M', g.M2, g.B3], ['S', g.A2, g.S1], ['S', g.S2, g.B2],
        ['V', portaEnd, between(g.A2, g.A3)]];
    const leads = [['STAND1', g.N1], ['STAND2', g.M1], ['STAND3', g.S1], ['STAND4', g.N2], ['STAND5', g.M2],
        ['STAND6', g.S2]];
    const roads = [['FIRE', 'B3'], ['FIRE', 'S2'], ['DEPOT', 'S1'], ['FUEL', 'A4'], ['FUEL', 'STAND1']];
    const centre = 116.599;
    const sides = (west, east) => [[centre - east, centre - west], [centre + west, centre + east]];
    const apron = sides(0.00085, 0.0033).map(([west, east], i) => area(`Apron ${'WE'[i]}`, box(40.0641, 40.0816, west, east)));
    const buildings = [['Terminal', box(40.0662, 40.0796, centre - 0.00055, centre + 0.00055)],
        ['Pier N', box(40.0766, 40.0772, centre - 0.00095, centre + 0.00095)],
        ['Pier S', box(40.0711, 40.0717, centre - 0.00095, centre + 0.00095)],
        ['Tower', box(40.0654, 40.0658, centre - 0.0002, centre + 0.0002)],
        ['Fire station', box(40.07085, 40.0715, 116.6030, 116.6038)],
        ['Depot', box(40.0665, 40.0671, 116.5937, 116.5949)],
        ['Fuel farm', box(40.0768, 40.0774, 116.5937, 116.5947)],
        ['Hangar 1', box(40.0838, 40.0848, 116.5942, 116.5962)], ['Hangar 2', box(40.0838, 40.0848, 116.6018, 116.6038)]];
    const middleOf = points => between(points[0], points[2]);
    const stand = place => circle(place, 28 / MetresPerMile, 12);
    const markings = runways.flatMap(([one, from, other, to]) => {
        const along = bearing(from, to);
        const number = (name, place, direction) => label(name, name, moved(place, direction, -110));
        const edge = (place, direction) => line(`${one}/${other}`,
            [moved(moved(place, along, direction), along - 90, 22), moved(moved(place, along, direction), along + 90, 22)]);
        return [line(`${one}/${other}`, [moved(from, along, 60), moved(to, along, -60)]), edge(from, 40), edge(to, -40),
            number(one, from, along), number(other, to, along + 180)];
    });
    write('demo-aerodrome', 'Aerodromes of the demonstration', [
        group('Aprons', 'apron', apron),
        group('Taxiways', 'taxiway', taxiways.map(([name, from, to]) => area(name, strip(from, to, 26, 13))),
            [['A', between(g.A2, g.A3, 0.35)], ['B', between(g.B2, g.B3, 0.35)], ['N', between(g.A4, g.N1)], ['M', between(g.A3, g.M1)],
                ['S', between(g.A2, g.S1)], ['V', between(portaEnd, g.A2)]].map(([name, place]) => label(name, name, place))),
        group('Service roads', 'road', roads.map(([from, to]) => line(`${from}-${to}`, [g[from], g[to]]))),
        group('Runways', 'runway', runways.map(([one, from, other, to, width]) => area(`${one}/${other}`, strip(from, to, width)))),
        group('Runway markings', 'marking', markings),
        group('Buildings', 'building', buildings.flatMap(([name, points]) =>
            name === 'Terminal' || name.startsWith('Hangar')
                ? [area(name, points), label(name, name.toUpperCase(), name === 'Terminal' ? [40.0776, centre] : middleOf(points))] : [area(name, points)])),
        group('Stands', 'stand', leads.flatMap(([name, from]) =>
            [line(name, [from, g[name]]), area(name, stand(g[name])), label(name, name.slice(5), moved(g[name], 0, 48))])),
        group('Hold short', 'holding', [[g.A1, g.RW36LT], [g.B1, g.RW36RT], [g.A4, g.WESTX], [g.B4, g.EASTX],
            [g.A5, g.RW36LE], [g.B5, g.RW36RE]].map(([from, to]) => {
            const place = moved(to, bearing(to, from), 90);
            return line('Holding point', [moved(place, 0, 16), moved(place, 180, 16)]);
        })),
    ]);
}

airspace();
approach();
aerodrome();
