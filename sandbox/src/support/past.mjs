import { imageUrl } from '../catalog/images.mjs';
import { sampleEmail } from '../accounts/people.mjs';

const hour = 3600 * 1000;

/** What was written before the store was started. */
export function pastMessages({ email }) {
  if (email !== sampleEmail) return [];
  const ours = (age, body) => ({ age: age * hour, direction: 'inbound', body, attachments: [], agent: 'Noor' });
  const hers = (age, body, attachments = []) => ({ age: age * hour, direction: 'outbound', body, attachments });
  return [
    hers(74, 'Hello! The blazer of my last order has a loose button. Can you send me a new one?'),
    ours(73.9, 'Hello Ines, how annoying, I am sorry. Could you send me a picture of it?'),
    hers(73.2, '', [{ url: imageUrl('linden-tailored-blazer', 2), name: 'blazer.jpg', mimeType: 'image/jpeg', width: 1200, height: 1600 }]),
    ours(73.1, 'Thank you. Two horn buttons and matching thread left our house today, free of charge.'),
    hers(50.5, 'They are here already. That was quick, thank you!'),
    ours(50.4, 'You are very welcome. Have a lovely day!'),
  ];
}
