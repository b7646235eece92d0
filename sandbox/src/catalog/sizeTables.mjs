import { scaleOf } from './sizes.mjs';

/** Body or garment measurements in centimetres: [name, smallest, step per size, width of the range]. */
const measures = {
  dress: [['Bust', 76, 4, 4], ['Waist', 58, 4, 4], ['Hip', 84, 4, 4], ['Length', 123, 1, 0]],
  coat: [['Chest', 84, 4, 4], ['Shoulder', 38, 1.5, 0], ['Sleeve', 60, 0.5, 0], ['Length', 108, 1, 0]],
  top: [['Chest', 80, 4, 4], ['Sleeve', 58, 1, 0], ['Length', 62, 1, 0]],
  skirt: [['Waist', 60, 4, 4], ['Hip', 86, 4, 4], ['Length', 72, 1, 0]],
  trousers: [['Waist', 62, 4, 4], ['Hip', 88, 4, 4], ['Inseam', 78, 0.5, 0]],
};

/**
 * How merchants write a measurement. The tables keep all of these habits, often side by side, because a reader of them
 * has to cope with all of these habits.
 */
const habits = {
  both: (low, high) => (high ? `${low} - ${high} cm / ${inches(low)} - ${inches(high)} in` : `${low}cm / ${inches(low)}in`),
  spaced: (low, high) => (high ? `${low} - ${high} cm` : `${low} cm`),
  tight: (low, high) => (high ? `${low}-${high}cm` : `${low}cm`),
  bare: (low, high) => (high ? `${low}-${high}` : `${low}`),
};

const habitNames = Object.keys(habits);

/** The size tables of a piece, as lists of rows whose first row names the columns. */
export function sizeTablesFor(piece, random) {
  const { garment, department } = piece;
  if (garment.table === 'bag') return [];
  if (garment.table === 'shoes') return [shoeTable(piece, random)];
  const title = garment.table === 'dress' ? 'Garment measurements' : 'Size table';
  const tables = [measureTable(title, piece, piece.tableHabit ?? random.pick(['mixed', ...habitNames]), random)];
  if (garment.sizes === 'letters' && random.chance(0.45)) tables.push(fitTable(piece, department));
  return tables;
}

function measureTable(title, piece, habit, random) {
  const scale = scaleOf(piece.garment, piece.department);
  const men = piece.department === 'men' ? 8 : 0;
  const columns = measures[piece.garment.table].map(([name, smallest, step, width]) => ({
    name,
    habit: habit === 'mixed' ? random.pick(habitNames) : habit,
    at: (size) => {
      const low = smallest + men + step * scale.indexOf(size);
      return [low, width ? low + width : null];
    },
  }));
  const unitInTitle = habit === 'bare';
  const heading = (column) => (column.habit === 'bare' && !unitInTitle ? `${column.name} (cm)` : column.name);
  return {
    title: unitInTitle ? `${title} (cm)` : title,
    rows: [
      ['Size', ...columns.map(heading)],
      ...piece.sizes.map((size) => [size, ...columns.map((column) => habits[column.habit](...column.at(size)))]),
    ],
  };
}

/** Who usually wears what, in feet, kilograms and pounds. */
function fitTable(piece, department) {
  const scale = scaleOf(piece.garment, department);
  const [height, weight] = department === 'men' ? [168, 58] : [156, 44];
  return {
    title: 'Find your size',
    rows: [
      ['Size', 'Height', 'Height in feet', 'Weight'],
      ...piece.sizes.map((size) => {
        const step = scale.indexOf(size);
        const centimetres = height + 4 * step;
        const kilograms = weight + 6 * step;
        const pounds = Math.round(kilograms * 2.2046);
        return [size, `${centimetres}cm / ${inches(centimetres)}in`, feet(centimetres), `${kilograms} kg / ${pounds} lbs`];
      }),
    ],
  };
}

function shoeTable(piece, random) {
  const habit = habits[random.pick(['both', 'spaced', 'tight'])];
  return {
    title: 'Shoe sizes',
    rows: [
      ['Size', 'UK', 'US', 'Foot length'],
      ...piece.sizes.map((size) => {
        const british = Number(size) - 33;
        const american = british + (piece.department === 'men' ? 1 : 2);
        return [size, String(british), String(american), habit(Math.round((Number(size) * 2 / 3 - 1.5) * 10) / 10, null)];
      }),
    ],
  };
}

function inches(centimetres) {
  return Math.round(centimetres / 2.54);
}

function feet(centimetres) {
  const all = inches(centimetres);
  return `${Math.floor(all / 12)}'${all % 12}"`;
}
